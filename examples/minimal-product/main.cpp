// The smallest real product on the shell: the start sequence, one window, a Help menu whose links
// open in the preferred browser, a nag shown on request and the Language menu.
// Options: --show-nag (the nag right after the start), --quit-after=MS (end by itself).

#include "App/Application/Application.h"
#include "App/Application/LifetimeManager.h"
#include "App/Application/LookAndFeelHandler.h"
#include "App/Application/LookAndFeelManager.h"
#include "App/Application/NagScreen/DefaultActions.h"
#include "App/Application/NagScreen/DialogStrategy.h"
#include "App/Application/NagScreen/NagIdLockStorage.h"
#include "App/Application/NagScreen/NagLinksOpener.h"
#include "App/Application/NagScreen/NagScreenEventHandler.h"
#include "App/Application/NagScreen/WebNagUrlGenerator.h"
#include "App/Application/PreferredBrowser.h"
#include "App/Application/StartupEnvironment.h"
#include "App/Application/Testing/Testing.h"
#include "Core/ApplicationSettingsManager.h"
#include "Core/CustomizationManager.h"
#include "Core/HardwareInfo.h"
#include "Core/InstallerSettingsManager.h"
#include "Core/LaunchTypeProcessor.h"
#include "Core/LinksManager.h"
#include "Core/MailSettingsManager.h"
#include "Core/ProductSettingsManager.h"
#include "Core/UserSettingsManager.h"
#include "Nag/DefaultNagsSettings.h"
#include "Nag/NagContext.h"
#include "Nag/NagManager.h"

#include <glog/logging.h>

#include <QLabel>
#include <QMainWindow>
#include <QMenuBar>
#include <QTimer>

using namespace Ostrel::App;

int main(int argc, char** argv)
{
    FLAGS_logtostderr = true;
    google::InitGoogleLogging(argv[0]);
    // 1. Before any Qt object; 2. the product's names (its application mutex is named after them),
    //    the lifetime manager, then the application.
    HighDpiFix();
    QCoreApplication::setOrganizationName(QStringLiteral("Example Org"));
    QCoreApplication::setApplicationName(QStringLiteral("Minimal Product"));
    const auto lifetime = std::make_shared<LifetimeManager>();
    Application app(argc, argv, lifetime);
    Testing testing(lifetime); // the shell's --test-* options, acting from here on

    // 3. The components: the customization first, the settings, the launch type after them.
    const auto customization =
        std::make_shared<CustomizationManager>(QString(), QStringLiteral(":/product/product.ini"));
    app.SetCustomizationManager(customization);
    const auto product = std::make_shared<ProductSettingsManager>();
    const auto installer = std::make_shared<InstallerSettingsManager>();
    app.set<IApplicationSettingsManager>(std::make_shared<ApplicationSettingsManager>());
    app.set<IProductSettingsManager>(product);
    app.set<IInstallerSettingsManager>(installer);
    app.set<IUserSettingsManager>(std::make_shared<UserSettingsManager>());
    app.set<IMailSettingsManager>(std::make_shared<MailSettingsManager>());
    app.set<IHardwareInfo>(std::make_shared<HardwareInfo>());
    app.SetLaunchTypeProcessor(
        std::make_shared<LaunchTypeProcessor>(product, installer, QCoreApplication::arguments()));

    // The look and feel reads <dir of the executable>/resources: locales and themes.
    const auto lookAndFeel = std::make_shared<LookAndFeelManager>(
        Ostrel::Core::ioPath(QCoreApplication::applicationDirPath()), "theme.title", std::list<std::string>(),
        std::list<std::string>());
    app.SetLookAndFeel(lookAndFeel);
    lookAndFeel->Initialize(std::string(), "light");
    qApp->setStyleSheet(QString::fromStdString(lookAndFeel->GetUnitedStylesheet()));

    // Links open in the preferred browser, which takes "http" and "https" for the process.
    PreferredBrowser browser(lookAndFeel, product, installer);
    const auto links = std::make_shared<LinksManager>(
        customization, app.get<IHardwareInfo>(), lookAndFeel, app.GetMailSettingsManager(), product,
        app.get<IUserSettingsManager>(), app.GetLaunchTypeProcessor(), nullptr, installer);
    app.SetLinksManager(links);

    // 4. Nags: a manager with its dialog, actions and web request, then the tracking in front.
    const auto nagsSettings = std::make_shared<Ostrel::App::WebConfig::DefaultNagsSettings>();
    const auto nags = std::make_shared<NagScreen::NagManager>(product);
    nags->SetNagsSettings(nagsSettings);
    nags->SetAppMode(NagScreen::AppMode::Free());
    nags->SetLocaleProvider(
        [lookAndFeel]() { return QString::fromStdString(lookAndFeel->GetCurrentLocale()); });
    nags->SetShowStrategy(std::make_shared<NagScreen::DialogStrategy>(nagsSettings));
    const auto nagLinks = NagScreen::fromLinksOpener(links);
    nags->SetActionStrategy(std::make_shared<NagScreen::DefaultActions>(
        links, nagLinks, customization, nullptr, nullptr, app.GetMailSettingsManager()));
    // One lock storage: the manager locks the id a web nag reports, the next request asks for it.
    const auto nagIdLocks = std::make_shared<NagScreen::NagIdLockStorage>(product);
    nags->SetNagIdLockStorage(nagIdLocks);
    nags->SetWebNagUrlGenerator(std::make_shared<NagScreen::WebNagUrlGenerator>(app, nagIdLocks));
    app.SetNagScreenManager(nags);
    NagScreen::setupNagScreenEventHandler(app, nullptr);

    // The window: Language, Help and the nag on request.
    QMainWindow window;
    window.setWindowTitle(QCoreApplication::applicationName());
    auto* label = new QLabel(QCoreApplication::applicationName(), &window);
    label->setAlignment(Qt::AlignCenter);
    window.setCentralWidget(label);
    window.resize(900, 560);
    auto* handler = new LookAndFeelHandler(lookAndFeel, window.menuBar()->addMenu(QObject::tr("&Language")),
                                           nullptr, &window);
    handler->SetLocaleList(lookAndFeel->GetLocales());
    handler->SelectLocale(lookAndFeel->GetCurrentLocale());
    handler->Refresh();
    QMenu* help = window.menuBar()->addMenu(QObject::tr("&Help"));
    for (const auto& [text, key] :
         {std::pair{"&Help Center", HELP_URL_menu}, {"&Privacy Policy", PRIVACY_POLICY_URL}})
        QObject::connect(help->addAction(QObject::tr(text)), &QAction::triggered,
                         [links, key = key]() { links->OpenUrl(key); });
    const auto showNag = [nags]() { nags->ShowNag(NagScreen::AppAction::AppStart()); };
    QObject::connect(help->addAction(QObject::tr("&Special Offer...")), &QAction::triggered, showNag);

    testing.initialize(customization, lookAndFeel, links, nags);

    // 5. The start, 6. the event loop.
    window.show();
    lifetime->start();
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.contains(QStringLiteral("--show-nag")))
        QTimer::singleShot(0, &app, showNag);
    for (const QString& argument : arguments) {
        if (argument.startsWith(QLatin1String("--quit-after=")))
            QTimer::singleShot(argument.section(QLatin1Char('='), 1).toInt(), &app,
                               [lifetime]() { lifetime->tryToQuit(); });
    }
    return QApplication::exec();
}
