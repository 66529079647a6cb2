// A child process for the crash record tests: each scenario lets an exception loose the way a
// product would, inside the real application object. The first argument names the scenario; the
// crash record file is named on standard output as "crashRecord=<path>".

#include "App/Application/Application.h"
#include "App/Application/LifetimeManager.h"
#include "Foundation/CrashRecord.h"

#include <QEvent>
#include <QEventLoop>
#include <QFile>
#include <QTimer>

#include <iostream>
#include <stdexcept>
#include <thread>

using namespace Ostrel;

namespace {

// On its event, runs a nested event loop, as a modal nag does, which delivers a failing call to
// `inner`, as a button of the nag would. (A QDialog's own loop does not survive an exception
// passing through it: Qt 5 is not exception-safe there, and the process would die of that.)
class ModalOwner : public QObject
{
public:
    QObject* inner = nullptr;

    bool event(QEvent* event) override
    {
        if (event->type() != QEvent::User)
            return QObject::event(event);
        QEventLoop modalLoop;
        QTimer::singleShot(0, inner, []() { throw std::runtime_error("failure inside the modal loop"); });
        modalLoop.exec();
        return true;
    }
};

} // namespace

int main(int argc, char** argv)
{
    const std::string scenario = argc > 1 ? argv[1] : "";
    auto lifetime = std::make_shared<App::LifetimeManager>();
    App::Application app(argc, argv, lifetime, App::Application::DISABLE_APP_MUTEX);
    QFile::remove(Core::CrashRecordPath().toQString());
    std::cout << "crashRecord=" << Core::CrashRecordPath().utf8() << std::endl;

    QObject inner;
    inner.setObjectName(QStringLiteral("innerReceiver"));
    ModalOwner outer;
    outer.setObjectName(QStringLiteral("outerReceiver"));
    outer.inner = &inner;

    if (scenario == "nested") {
        QCoreApplication::postEvent(&outer, new QEvent(QEvent::User));
        try {
            return QApplication::exec();
        } catch (const std::exception& exception) {
            std::cout << "rethrown=" << exception.what() << std::endl;
            return 3;
        }
    }
    if (scenario == "terminate") {
        // Not a std::exception: the event guard lets it pass, nothing catches it.
        QTimer::singleShot(0, &inner, []() { throw 42; });
        return QApplication::exec();
    }
    if (scenario == "thread") {
        std::thread worker([]() { throw std::runtime_error("failure in a thread for jo@x.example"); });
        worker.join();
        return 0;
    }
    std::cerr << "unknown scenario " << scenario << std::endl;
    return 2;
}
