#include "TestEnvironment.h"

#include <glog/logging.h>

#include <QDir>
#include <QStandardPaths>

#include <cstdlib>

namespace Ostrel::Test {
namespace {

QtMessageHandler previousHandler = nullptr;
bool warningsFail = false;

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
    previousHandler(type, context, message);
    if (warningsFail && (type == QtWarningMsg || type == QtCriticalMsg))
        QTest::qFail(qPrintable(QStringLiteral("Unexpected Qt warning: ") + message), context.file ? context.file : "",
                     context.line);
}

} // namespace

void initTestEnvironment(const char* argv0)
{
    QStandardPaths::setTestModeEnabled(true);
    FLAGS_logtostderr = true;
    FLAGS_minloglevel = google::GLOG_INFO;
    if (!google::IsGoogleLoggingInitialized())
        google::InitGoogleLogging(argv0);
}

int exec(QObject* test, int argc, char** argv)
{
    warningsFail = qEnvironmentVariableIntValue("OSTREL_QT_WARNINGS_FAIL") == 1;
    QTest::qInit(test, argc, argv);
    // Installed after QtTest's own handler, so that ours sees every message first.
    previousHandler = qInstallMessageHandler(guardMessage);
    const int result = QTest::qRun();
    qInstallMessageHandler(previousHandler);
    QTest::qCleanup();
    return result;
}

} // namespace Ostrel::Test
