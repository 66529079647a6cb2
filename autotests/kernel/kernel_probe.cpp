// A child process for the kernel tests: whatever ends, restarts or locks a process is tried here,
// never in the test process itself. The first argument names the scenario; the results go to
// standard output, one "key=value" a line.

#include "App/Application/Application.h"
#include "App/Application/ISplash.h"
#include "App/Application/LifetimeManager.h"
#include "App/Application/StartupEnvironment.h"
#include "Foundation/AppMutexLocker.h"
#include "Foundation/CrashRecord.h"

#include <glog/logging.h>

#include <QFile>
#include <QStandardPaths>
#include <QTextStream>
#include <QThread>
#include <QTimer>

#include <cstdio>
#include <iostream>

using namespace Ostrel;

namespace {

class Thrower : public QObject
{
    Q_OBJECT
public:
    bool standardException = true;

public Q_SLOTS:
    void explode()
    {
        if (standardException)
            throw std::runtime_error("slot exploded");
        throw 42;
    }
};

// Writes the arguments it was started with to the file named by OSTREL_PROBE_RECORD.
int record(int argc, char** argv)
{
    QFile file(QString::fromLocal8Bit(qgetenv("OSTREL_PROBE_RECORD")));
    if (!file.open(QIODevice::WriteOnly))
        return 2;
    for (int i = 1; i < argc; ++i)
        file.write(QByteArray(argv[i]) + '\n');
    return 0;
}

// "restart ARGUMENTS [early]": early asks before there is an application object.
int restart(int argc, char** argv)
{
    const std::string arguments = argc > 2 ? argv[2] : "";
    auto lifetime = std::make_shared<App::LifetimeManager>();
    if (argc > 3 && std::string(argv[3]) == "early") {
        std::cout << "restarted=" << lifetime->tryToRestart(App::Silent, std::string(), arguments)
                  << std::endl;
        return 0;
    }
    App::Application app(argc, argv, lifetime, App::Application::DISABLE_APP_MUTEX);
    lifetime->start();
    const bool restarted = lifetime->tryToRestart(App::Silent, std::string(), arguments);
    std::cout << "restarted=" << restarted << std::endl;
    return 0;
}

int guard(int argc, char** argv)
{
    const bool standard = std::string(argv[2]) == "std";
    auto lifetime = std::make_shared<App::LifetimeManager>();
    App::Application app(argc, argv, lifetime, App::Application::DISABLE_APP_MUTEX);
    QFile::remove(QString::fromStdString(Core::CrashRecordPath().utf8()));
    std::cout << "crashRecord=" << Core::CrashRecordPath().utf8() << std::endl;

    Thrower thrower;
    thrower.setObjectName(QStringLiteral("thrower"));
    thrower.standardException = standard;
    QMetaObject::invokeMethod(&thrower, "explode", Qt::QueuedConnection);
    try {
        QCoreApplication::sendPostedEvents();
    } catch (const std::exception& exception) {
        std::cout << "rethrown=" << exception.what() << std::endl;
        return 3;
    } catch (...) {
        std::cout << "rethrown=other" << std::endl;
        return 4;
    }
    std::cout << "rethrown=none" << std::endl;
    return 0;
}

// The product's lifetime manager outlives the application and starts after it is gone.
int startAfterApplication(int argc, char** argv)
{
    struct CountingSplash : App::ISplash
    {
        void show() override {}
        void dismiss() override { ++dismissals; }
        int dismissals = 0;
    };
    const auto splash = std::make_shared<CountingSplash>();
    auto lifetime = std::make_shared<App::LifetimeManager>();
    {
        App::Application app(argc, argv, lifetime, App::Application::DISABLE_APP_MUTEX);
        app.SetSplash(splash);
    }
    lifetime->start();
    std::cout << "dismissals=" << splash->dismissals << std::endl;
    return 0;
}

int instance(int argc, char** argv)
{
    auto lifetime = std::make_shared<App::LifetimeManager>();
    App::Application app(argc, argv, lifetime);
    lifetime->start();
    std::cout << "started=1" << std::endl;
    QTimer::singleShot(std::stoi(argv[2]), [&]() { lifetime->tryToQuit(); });
    return app.exec();
}

// Whether another locker of the application's lock gets it while an Application of the product
// "Probe Org"/argv[2] lives, and once it is gone; the locker is another program of the product.
int appMutex(int argc, char** argv)
{
    QCoreApplication::setOrganizationName(QStringLiteral("Probe Org"));
    QCoreApplication::setApplicationName(QString::fromUtf8(argv[2]));
    const std::string name = App::Application::GetAppMutexName();
    {
        auto lifetime = std::make_shared<App::LifetimeManager>();
        App::Application app(argc, argv, lifetime);
        Util::AppMutexLocker other(name);
        std::cout << "lockedWhileAlive=" << other.TryLockAppMutex() << std::endl;
    }
    Util::AppMutexLocker other(name);
    std::cout << "lockedAfter=" << other.TryLockAppMutex() << std::endl;
    return 0;
}

int holdLock(char** argv)
{
    Util::AppMutexLocker locker(argv[2]);
    std::cout << "locked=" << locker.TryLockAppMutex() << std::endl;
    for (;;)
        QThread::sleep(1);
}

int dpi()
{
    App::HighDpiFix();
    std::cout << "highDpiScaling=" << QCoreApplication::testAttribute(Qt::AA_EnableHighDpiScaling)
              << std::endl;
    return 0;
}

} // namespace

int main(int argc, char** argv)
{
    QStandardPaths::setTestModeEnabled(true);
    FLAGS_logtostderr = true;
    google::InitGoogleLogging(argv[0]);

    const std::string mode = argc > 1 ? argv[1] : "";
    if (mode == "dpi")
        return dpi();
    if (mode == "restart")
        return restart(argc, argv);
    if (mode == "guard" && argc > 2)
        return guard(argc, argv);
    if (mode == "lateStart")
        return startAfterApplication(argc, argv);
    if (mode == "instance" && argc > 2)
        return instance(argc, argv);
    if (mode == "appmutex" && argc > 2)
        return appMutex(argc, argv);
    if (mode == "holdlock" && argc > 2)
        return holdLock(argv);
    if (qEnvironmentVariableIsSet("OSTREL_PROBE_RECORD"))
        return record(argc, argv);
    std::cerr << "unknown scenario" << std::endl;
    return 1;
}

#include "kernel_probe.moc"
