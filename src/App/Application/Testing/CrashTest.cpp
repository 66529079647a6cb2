#include "App/Application/Testing/CrashTest.h"

#include "Foundation/Utf8.h"

#include <glog/logging.h>

#include <QCommandLineParser>
#include <QTimer>

#include <cstdint>
#include <stdexcept>
#include <thread>

namespace Ostrel::App {

namespace {

const QString& afterName()
{
    static const QString name = QStringLiteral("test-crash-after");
    return name;
}

const QCommandLineOption& afterOption()
{
    static const QCommandLineOption option(afterName(), QStringLiteral("Set crash after timeout in ms"),
                                           QStringLiteral("crashTimeout"), QStringLiteral("1000"));
    return option;
}

const QCommandLineOption& reasonOption()
{
    static const QCommandLineOption option(
        QStringLiteral("test-crash-reason"),
        QStringLiteral("Select a crash reason for %1, available: %2")
            .arg(afterName(), CrashTest::crashReasons().join(QStringLiteral(", "))),
        QStringLiteral("crashReason"), QStringLiteral("segfault"));
    return option;
}

const QCommandLineOption& threadOption()
{
    static const QCommandLineOption option(
        QStringLiteral("test-crash-thread"),
        QStringLiteral("Select a crash thread for %1, available: %2")
            .arg(afterName(), CrashTest::crashThreads().join(QStringLiteral(", "))),
        QStringLiteral("crashThread"), QStringLiteral("background"));
    return option;
}

// The option's value (its default when absent) if `allowed` holds it, compared case-sensitively;
// else empty, with the reason in the log.
QString checkedValue(const QCommandLineParser& parser, const QCommandLineOption& option,
                     const QStringList& allowed)
{
    const QString value = parser.value(option);
    if (allowed.contains(value))
        return value;
    LOG(ERROR) << Util::QStringToUtf8(
        QStringLiteral("%1 isn't supported value for %2").arg(value, option.names().first()));
    return QString();
}

// The store to address 0 is the point: sanitizer builds must not turn it into a report of their
// own, so that the crash reaches the system as a segmentation fault there too.
#if defined(__GNUC__)
#define OSTREL_DELIBERATE_CRASH __attribute__((no_sanitize_address, no_sanitize_undefined))
#else
#define OSTREL_DELIBERATE_CRASH
#endif

OSTREL_DELIBERATE_CRASH void crash(const QString& reason)
{
    if (reason == QLatin1String("segfault")) {
        // Volatile, so that the compiler can neither drop the store nor reason about it.
        *static_cast<volatile std::int32_t*>(nullptr) = 1;
        return;
    }
    throw std::runtime_error(Util::QStringToUtf8(QStringLiteral("Exception from %1").arg(afterName())));
}

} // namespace

const QStringList& CrashTest::crashReasons()
{
    static const QStringList reasons{QStringLiteral("segfault"), QStringLiteral("exception")};
    return reasons;
}

const QStringList& CrashTest::crashThreads()
{
    static const QStringList threads{QStringLiteral("main"), QStringLiteral("background")};
    return threads;
}

void CrashTest::initialize(const QCommandLineParser&) {}

void CrashTest::run(const QCommandLineParser& parser)
{
    if (!parser.isSet(afterOption()))
        return;
    // Not a number reads as 0: the crash comes at the first turn of the event loop.
    const int timeout = parser.value(afterOption()).toInt(nullptr, 10);
    const QString reason = checkedValue(parser, reasonOption(), crashReasons());
    if (reason.isEmpty())
        return;
    const QString thread = checkedValue(parser, threadOption(), crashThreads());
    if (thread.isEmpty())
        return;
    LOG(WARNING) << "Crash test armed: " << Util::QStringToUtf8(reason) << " on the "
                 << Util::QStringToUtf8(thread) << " thread in " << timeout << " ms";
    // Without a context object; this overload picks the timer type Qt's default gives for `timeout`.
    QTimer::singleShot(timeout, [reason, thread]() {
        if (thread == QLatin1String("main")) {
            crash(reason);
            return;
        }
        // The main thread waits in the join: the process goes down from the background thread.
        std::thread background([reason = QString(reason)]() mutable { crash(std::move(reason)); });
        background.join();
    });
}

QList<QCommandLineOption> CrashTest::getCLO() const
{
    return {afterOption(), reasonOption(), threadOption()};
}

} // namespace Ostrel::App
