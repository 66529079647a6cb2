#include "TestEnvironment.h"

#include <glog/logging.h>

#include <QDir>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <cstdlib>

namespace Ostrel::Test {
namespace {

QtMessageHandler previousHandler = nullptr;
bool warningsFail = false;

// The warnings a test function announced with Test::ignoreMessage, each taken off when it comes.
struct Expected
{
    QtMsgType type;
    QString text;
    QRegularExpression pattern;
};
QList<Expected>& expectedMessages()
{
    static QList<Expected> expected;
    return expected;
}

bool takeExpected(QtMsgType type, const QString& message)
{
    QList<Expected>& expected = expectedMessages();
    for (int i = 0; i < expected.size(); ++i) {
        const Expected& entry = expected.at(i);
        const bool matches = entry.pattern.pattern().isEmpty() ? entry.text == message
                                                               : entry.pattern.match(message).hasMatch();
        if (entry.type == type && matches) {
            expected.removeAt(i);
            return true;
        }
    }
    return false;
}

// What the offscreen platform says about features it lacks: noise, not a fault of the code.
bool isPlatformNoise(const QString& message)
{
    return message == QLatin1String("This plugin does not support propagateSizeHints()") ||
           message == QLatin1String("This plugin does not support raise()") ||
           message == QLatin1String("This plugin does not support setting window opacity") ||
           message.startsWith(QLatin1String("This plugin does not support grabbing the keyboard"));
}

void guardMessage(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    if (isPlatformNoise(message))
        return;
    const bool expected = takeExpected(type, message);
    previousHandler(type, context, message);
    if (warningsFail && !expected && (type == QtWarningMsg || type == QtCriticalMsg))
        QTest::qFail(qPrintable(QStringLiteral("Unexpected Qt warning: ") + message),
                     context.file ? context.file : "", context.line);
}

} // namespace

void setUpTestProcess(const char* argv0, bool qtWarningsFail)
{
    warningsFail = qtWarningsFail;
    // No display and no GPU: the same pixels on every machine. The child processes of a test
    // inherit all of this.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_QUICK_BACKEND", "software");
    // Qt warns without a runtime folder, and the application's lock files live there: each test
    // process gets one of its own, so that no test meets a running product's lock or another
    // test's. It is removed when the process ends.
    static QTemporaryDir runtimeDir(QDir::tempPath() + QStringLiteral("/ostrel-test-runtime-XXXXXX"));
    if (runtimeDir.isValid())
        qputenv("XDG_RUNTIME_DIR", QFile::encodeName(runtimeDir.path()));
    QStandardPaths::setTestModeEnabled(true);
    FLAGS_logtostderr = true;
    FLAGS_minloglevel = google::GLOG_INFO;
    if (!google::IsGoogleLoggingInitialized())
        google::InitGoogleLogging(argv0);
}

void ignoreMessage(QtMsgType type, const QString& message)
{
    expectedMessages().append({type, message, QRegularExpression()});
    QTest::ignoreMessage(type, qPrintable(message));
}

void ignoreMessage(QtMsgType type, const QRegularExpression& pattern)
{
    expectedMessages().append({type, QString(), pattern});
    QTest::ignoreMessage(type, pattern);
}

int exec(QObject* test, int argc, char** argv)
{
    QTest::qInit(test, argc, argv);
    // Installed after QtTest's own handler, so that ours sees every message first.
    previousHandler = qInstallMessageHandler(guardMessage);
    const int result = QTest::qRun();
    qInstallMessageHandler(previousHandler);
    QTest::qCleanup();
    return result;
}

} // namespace Ostrel::Test
