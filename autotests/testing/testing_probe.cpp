// A child process for the harness tests: the test options are read from the process's own command
// line, and some of them bring the process down. The first argument names the scenario, the rest is
// the command line the harness sees. Results go to standard output, one "key=value" a line.

#include "FakeCustomization.h"
#include "FakeHardware.h"
#include "FakeLaunchType.h"
#include "MemorySettings.h"

#include "App/Application/Application.h"
#include "App/Application/LifetimeManager.h"
#include "App/Application/LookAndFeelManager.h"
#include "App/Application/Testing/ConnectionTest.h"
#include "App/Application/Testing/Testing.h"
#include "App/Application/Testing/UrlTest.h"
#include "Core/LinksManager.h"
#include "Interfaces/IInternetConnectionChecker.h"
#include "Nag/NagManager.h"
#include "QtUtil/UrlProtocol.h"
#include "QtUtil/Utf8.h"

#include <glog/logging.h>

#include <QDesktopServices>
#include <QElapsedTimer>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>
#include <QUrl>

#include <iostream>

using namespace Ostrel;
using namespace Ostrel::App;
using namespace Ostrel::Test;

namespace {

// The real checker lives outside the shell; any will do to see whether it is replaced.
class OnlineChecker : public IInternetConnectionChecker
{
public:
    bool IsConnected() override { return true; }
    ConnectionHandle GetConnectionHandle() override { return this; }
};

QElapsedTimer& sinceStart()
{
    static QElapsedTimer timer;
    return timer;
}

// Answers every message box of the harness with OK and reports its text.
void answerDialogs(const char* key)
{
    auto* poll = new QTimer(qApp);
    QObject::connect(poll, &QTimer::timeout, [poll, key]() {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (!box)
            return;
        std::cout << key << "=" << box->text().toUtf8().toBase64().constData() << std::endl;
        std::cout << key << "Title=" << Util::QStringToUtf8(box->windowTitle()) << std::endl;
        box->button(QMessageBox::Ok)->click();
        poll->stop();
    });
    poll->start(20);
}

std::shared_ptr<LookAndFeelManager> realLookAndFeel()
{
    auto manager = std::make_shared<LookAndFeelManager>(Core::ioPath(QStringLiteral(OSTREL_BUILD_ROOT)), "theme.title",
                                                       std::list<std::string>{"base", "controls", "ostrel"},
                                                       std::list<std::string>());
    manager->Initialize(qEnvironmentVariable("PROBE_LOCALE", QStringLiteral("en_US")).toStdString(), "dark");
    return manager;
}

} // namespace

int main(int argc, char** argv)
{
    FLAGS_logtostderr = true;
    google::InitGoogleLogging(argv[0]);
    const std::string scenario = argc > 1 ? argv[1] : "";
    auto lifetime = std::make_shared<LifetimeManager>();
    Application app(argc, argv, lifetime, Application::DISABLE_APP_MUTEX);
    sinceStart().start();

    std::unique_ptr<Testing> testing;
    try {
        testing = std::make_unique<Testing>(lifetime);
    } catch (const std::exception& error) {
        std::cout << "constructionError=" << error.what() << std::endl;
        return 3;
    }
    std::cout << "ssl=" << Util::DefaultSslUsage() << std::endl;

    const auto connection = std::make_shared<ConnectionTest>();
    testing->addTest(connection);
    const auto checker = std::make_shared<OnlineChecker>();
    const auto replaced = connection->replaceIfNeeded(checker);
    std::cout << "checkerReplaced=" << (replaced != checker) << std::endl;
    std::cout << "checkerOnline=" << replaced->IsConnected() << std::endl;

    auto customization = std::make_shared<FakeCustomization>();
    std::shared_ptr<LookAndFeelManager> lookAndFeel;
    std::shared_ptr<LinksManager> links;
    std::shared_ptr<NagScreen::NagManager> nags;
    if (scenario == "full") {
        lookAndFeel = realLookAndFeel();
        links = std::make_shared<LinksManager>(customization, std::make_shared<FakeHardware>(), lookAndFeel,
                                               std::make_shared<MemoryMailSettings>(),
                                               std::make_shared<MemoryProductSettings>(),
                                               std::make_shared<MemoryUserSettings>(),
                                               std::make_shared<FakeLaunchType>(), nullptr,
                                               std::make_shared<MemoryInstallerSettings>());
        nags = std::make_shared<NagScreen::NagManager>(nullptr);
        nags->SetModuleName(QStringLiteral("capture"));
        // Nags read the application's locale, which the walk switches through the look and feel.
        nags->SetLocaleProvider([lookAndFeel]() { return Util::Utf8ToQString(lookAndFeel->GetCurrentLocale()); });
        testing->initialize(customization, lookAndFeel, links, nags);
        UrlTest paths(customization, lookAndFeel, links);
        std::cout << "dumpPath=" << Util::QStringToUtf8(paths.dumpFilePath()) << std::endl;
        std::cout << "localeBefore=" << lookAndFeel->GetCurrentLocale() << std::endl;
    }

    QStringList names = testing->getCommandLineArgumentsString();
    std::cout << "optionNames=" << Util::QStringToUtf8(names.join(QLatin1Char(','))) << std::endl;
    answerDialogs("dialog");
    lifetime->start();
    std::cout << "started=" << sinceStart().elapsed() << std::endl;
    if (lookAndFeel)
        std::cout << "localeAfter=" << lookAndFeel->GetCurrentLocale() << std::endl;
    if (qEnvironmentVariableIsSet("PROBE_OPEN_URL"))
        std::cout << "opened=" << QDesktopServices::openUrl(QUrl(qEnvironmentVariable("PROBE_OPEN_URL"))) << std::endl;

    // Time for an armed crash to happen; a process still alive afterwards says so.
    const int stay = qEnvironmentVariableIntValue("PROBE_STAY_MS");
    QTimer::singleShot(stay, &app, [&]() {
        std::cout << "survived=" << sinceStart().elapsed() << std::endl;
        QApplication::quit();
    });
    return QApplication::exec();
}
