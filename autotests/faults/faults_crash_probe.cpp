// A child process for the crash record tests: each scenario lets an exception loose the way a
// product would, inside the real application object, and nothing catches it. The first argument
// names the scenario; the crash record file is named on standard output as "crashRecord=<path>".

#include "App/Application/Application.h"
#include "App/Application/LifetimeManager.h"
#include "Foundation/CrashRecord.h"

#include <QDialog>
#include <QFile>
#include <QTimer>

#include <iostream>
#include <stdexcept>
#include <thread>

using namespace Ostrel;

int main(int argc, char** argv)
{
    const std::string scenario = argc > 1 ? argv[1] : "";
    auto lifetime = std::make_shared<App::LifetimeManager>();
    App::Application app(argc, argv, lifetime, App::Application::DISABLE_APP_MUTEX);
    QFile::remove(Core::CrashRecordPath().toQString());
    std::cout << "crashRecord=" << Core::CrashRecordPath().utf8() << std::endl;

    QObject receiver;
    receiver.setObjectName(QStringLiteral("failingReceiver"));
    const auto fail = []() { throw std::runtime_error("failure in an event"); };

    if (scenario == "main") {
        QTimer::singleShot(0, &receiver, fail);
        return QApplication::exec();
    }
    // A modal box, as a nag shown at the start (before the main loop) or from a menu (inside it):
    // the failure comes from an event that the box's own loop delivers.
    // The box lives in the frame that shows it, as a nag's does: unwinding to the main loop
    // destroys it.
    if (scenario == "modal" || scenario == "modal in main loop") {
        const auto showBox = [&receiver, fail]() {
            QDialog box;
            QTimer::singleShot(0, &receiver, fail);
            box.exec();
        };
        if (scenario == "modal")
            showBox();
        else
            QTimer::singleShot(0, &receiver, showBox);
        return QApplication::exec();
    }
    if (scenario == "terminate") {
        // Not a std::exception: the event guard lets it pass, nothing catches it.
        QTimer::singleShot(0, &receiver, []() { throw 42; });
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
