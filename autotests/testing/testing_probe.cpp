// A child process for the harness tests: the test options are read from the process's own command
// line, and some of them bring the process down. The first argument names the scenario, the rest is
// the command line the harness sees. Results go to standard output, one "key=value" a line.
//
// Scenarios: "core" (the tests of the Testing constructor and the host's connection test), "full"
// (Testing::initialize with the real links and nag managers), "short" (the URL and nag tests added
// by hand, with short timings, over links of known answers and the nag map of PROBE_NAG_MAP).

#include "FakeCustomization.h"
#include "FakeHardware.h"
#include "FakeLaunchType.h"
#include "MemorySettings.h"

#include "App/Application/Application.h"
#include "App/Application/LifetimeManager.h"
#include "App/Application/LookAndFeelManager.h"
#include "App/Application/Testing/ConnectionTest.h"
#include "App/Application/Testing/NagTest.h"
#include "App/Application/Testing/Testing.h"
#include "App/Application/Testing/UrlTest.h"
#include "Core/LinksManager.h"
#include "Foundation/Utf8.h"
#include "Interfaces/IInternetConnectionChecker.h"
#include "Interfaces/ILinksManager.h"
#include "Nag/AbstractContent.h"
#include "Nag/IContentFactory.h"
#include "Nag/NagManager.h"
#include "QtUtil/UrlProtocol.h"

#include <glog/logging.h>

#include <QDesktopServices>
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

// Known answers: a URL for three keys only, made of the look and feel's locale and the key's number.
// Opened URLs are printed in order, and the process ends after PROBE_OPEN_COUNT of them.
class ProbeLinks : public ILinksManager
{
public:
    explicit ProbeLinks(std::shared_ptr<ILookAndFeelManager> lookAndFeel)
        : m_lookAndFeel(std::move(lookAndFeel))
    {
    }
    QString GetUrl(const QString&) const override { return {}; }
    QString GetUrl(URLKeys key) const override
    {
        if (key != FAQ_URL_menu && key != BUY_NOW_URL && key != LEARN_MORE_HOTKEYS_URL_CD_tooltip)
            return {};
        return QStringLiteral("https://links.test/%1/%2")
            .arg(Util::Utf8ToQString(m_lookAndFeel->GetCurrentLocale()))
            .arg(static_cast<int>(key));
    }
    QString GenerateUrl(const QString& url, QMap<QString, QString>) const override { return url; }
    void OpenUrl(const QString& url) const override
    {
        std::cout << "open" << ++m_opened << "=" << Util::QStringToUtf8(url) << std::endl;
        if (m_opened == qEnvironmentVariableIntValue("PROBE_OPEN_COUNT"))
            QApplication::quit();
    }
    void OpenUrl(URLKeys key) const override { OpenUrl(GetUrl(key)); }

private:
    std::shared_ptr<ILookAndFeelManager> m_lookAndFeel;
    mutable int m_opened = 0;
};

// The content factory of the nag library, except that it makes nothing for the action "undefined".
class ProbeNagManager : public NagScreen::NagManager
{
public:
    using NagManager::NagManager;
    std::shared_ptr<NagScreen::IContentFactory> GetContentFactory() const override
    {
        const auto real = NagManager::GetContentFactory();
        return real ? std::make_shared<Factory>(real) : nullptr;
    }

private:
    class Factory : public NagScreen::IContentFactory
    {
    public:
        explicit Factory(std::shared_ptr<NagScreen::IContentFactory> real) : m_real(std::move(real)) {}
        std::unique_ptr<NagScreen::AbstractContent> Create(NagScreen::Implementation implementation,
                                                           const NagScreen::NagContext& context) override
        {
            if (context.action == QLatin1String("undefined"))
                return nullptr;
            return m_real->Create(implementation, context);
        }

    private:
        std::shared_ptr<NagScreen::IContentFactory> m_real;
    };
};

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
    auto manager = std::make_shared<LookAndFeelManager>(
        Core::ioPath(QStringLiteral(OSTREL_BUILD_ROOT)), "theme.title",
        std::list<std::string>{"base", "controls", "ostrel"}, std::list<std::string>());
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
    std::shared_ptr<ILinksManager> links;
    std::shared_ptr<NagScreen::NagManager> nags;
    if (scenario == "short") {
        lookAndFeel = realLookAndFeel();
        links = std::make_shared<ProbeLinks>(lookAndFeel);
        nags = std::make_shared<ProbeNagManager>(
            nullptr, qEnvironmentVariable("PROBE_NAG_MAP", QStringLiteral(":/NagScreen/nagMap.json")));
        nags->SetModuleName(QStringLiteral("capture"));
        nags->SetLocaleProvider(
            [lookAndFeel]() { return Util::Utf8ToQString(lookAndFeel->GetCurrentLocale()); });
        // What Testing::initialize adds, in its order, with the timings of a test run.
        auto urlTest = std::make_shared<UrlTest>(customization, lookAndFeel, links);
        urlTest->setFirstOpenDelay(std::chrono::milliseconds(1));
        testing->addTest(urlTest);
        auto nagTest = std::make_shared<NagTest>(customization, lookAndFeel, nags);
        nagTest->setPictureDelay(std::chrono::milliseconds(1));
        testing->addTest(nagTest);
        std::cout << "dumpPath=" << Util::QStringToUtf8(urlTest->dumpFilePath()) << std::endl;
        std::cout << "localeBefore=" << lookAndFeel->GetCurrentLocale() << std::endl;
    } else if (scenario == "full") {
        lookAndFeel = realLookAndFeel();
        links = std::make_shared<LinksManager>(
            customization, std::make_shared<FakeHardware>(), lookAndFeel,
            std::make_shared<MemoryMailSettings>(), std::make_shared<MemoryProductSettings>(),
            std::make_shared<MemoryUserSettings>(), std::make_shared<FakeLaunchType>(), nullptr,
            std::make_shared<MemoryInstallerSettings>());
        nags = std::make_shared<NagScreen::NagManager>(nullptr);
        nags->SetModuleName(QStringLiteral("capture"));
        // Nags read the application's locale, which the walk switches through the look and feel.
        nags->SetLocaleProvider(
            [lookAndFeel]() { return Util::Utf8ToQString(lookAndFeel->GetCurrentLocale()); });
        testing->initialize(customization, lookAndFeel, links, nags);
        UrlTest paths(customization, lookAndFeel, links);
        std::cout << "dumpPath=" << Util::QStringToUtf8(paths.dumpFilePath()) << std::endl;
        std::cout << "localeBefore=" << lookAndFeel->GetCurrentLocale() << std::endl;
    }

    QStringList names = testing->getCommandLineArgumentsString();
    std::cout << "optionNames=" << Util::QStringToUtf8(names.join(QLatin1Char(','))) << std::endl;
    answerDialogs("dialog");
    lifetime->start();
    std::cout << "started=1" << std::endl;
    if (lookAndFeel)
        std::cout << "localeAfter=" << lookAndFeel->GetCurrentLocale() << std::endl;
    if (qEnvironmentVariableIsSet("PROBE_OPEN_URL"))
        std::cout << "opened=" << QDesktopServices::openUrl(QUrl(qEnvironmentVariable("PROBE_OPEN_URL")))
                  << std::endl;

    // Started after every timer of the harness's own start: one of the same delay or shorter fires
    // before this one. A process still alive afterwards says so.
    const int stay = qEnvironmentVariableIntValue("PROBE_STAY_MS");
    QTimer::singleShot(stay, &app, [&]() {
        std::cout << "survived=1" << std::endl;
        QApplication::quit();
    });
    return QApplication::exec();
}
