// The smallest real product on the shell, wired as HOSTING.md says: the start sequence, one
// window, a Help menu whose links open in the preferred browser, a nag shown on request, and the
// Language and Theme menus, whose choices it remembers. It leaves out what the guide marks as
// optional: tracking, the hand-off between instances and a log file (it logs to standard error).
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
#include "Foundation/MaskedLogging.h"
#include "Nag/DefaultNagsSettings.h"
#include "Nag/NagContext.h"
#include "Nag/NagManager.h"
#include "QtUtil/QtMessageRouting.h"

#include <glog/logging.h>

#include <QLabel>
#include <QMainWindow>
#include <QMenuBar>
#include <QTimer>

#include <algorithm>

using namespace Ostrel::App;

namespace {

const char* const LocaleKey = "LookAndFeel/Locale";
const char* const ThemeKey = "LookAndFeel/Theme";

// Hears every switch of the look and feel, from the menus or from anywhere else: the stylesheet
// follows the theme, and a new language composes the theme again (its macros may differ by
// language).
class StylesheetFollower : public ILookAndFeelObserver
{
public:
    explicit StylesheetFollower(std::shared_ptr<ILookAndFeelManager> lookAndFeel)
        : m_lookAndFeel(std::move(lookAndFeel))
    {
        m_lookAndFeel->RegisterObserver(this);
    }
    ~StylesheetFollower() override { m_lookAndFeel->UnregisterObserver(this); }
    StylesheetFollower(const StylesheetFollower&) = delete;
    StylesheetFollower& operator=(const StylesheetFollower&) = delete;

    void OnLocaleChanged(const std::string&) override
    {
        m_lookAndFeel->SetTheme(m_lookAndFeel->GetCurrentTheme());
    }
    void OnThemeChanged(const std::string&) override
    {
        qApp->setStyleSheet(QString::fromStdString(m_lookAndFeel->GetUnitedStylesheet()));
    }

private:
    std::shared_ptr<ILookAndFeelManager> m_lookAndFeel;
};

} // namespace

int main(int argc, char** argv)
{
    // 0. glog to standard error (a product with a log file sets its destination later), every
    //    line through the personal-data mask, and Qt's own messages into the same log.
    FLAGS_logtostderr = true;
    google::InitGoogleLogging(argv[0]);
    Ostrel::Core::MaskedLogging::install();
    Ostrel::Util::InstallQtMessageRouting();
    // 1. Before any Qt object; 2. the product's names (its application mutex is named after them),
    //    the lifetime manager, then the application.
    HighDpiFix();
    QCoreApplication::setOrganizationName(QStringLiteral("Example Org"));
    QCoreApplication::setApplicationName(QStringLiteral("Minimal Product"));
    const auto lifetime = std::make_shared<LifetimeManager>();
    Application app(argc, argv, lifetime);
    Testing testing(lifetime); // 3. the shell's --test-* options, acting from here on

    // 4. The components: the customization first, the settings, the launch type after them.
    const auto customization =
        std::make_shared<CustomizationManager>(QString(), QStringLiteral(":/product/product.ini"));
    app.SetCustomizationManager(customization);
    const auto product = std::make_shared<ProductSettingsManager>();
    const auto installer = std::make_shared<InstallerSettingsManager>();
    const auto settings = std::make_shared<ApplicationSettingsManager>();
    app.set<IApplicationSettingsManager>(settings);
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
    const StylesheetFollower stylesheet(lookAndFeel);
    // The user's last choice; a theme that is gone gives way to the first installed one.
    std::string theme = settings->GetString(ThemeKey, "light");
    const auto& themes = lookAndFeel->GetThemes();
    if (themes.empty())
        LOG(WARNING) << "No themes in " << QCoreApplication::applicationDirPath().toStdString()
                     << "/resources/themes: the product's resource tree is missing";
    if (std::find(themes.begin(), themes.end(), theme) == themes.end())
        theme = themes.empty() ? std::string() : themes.front();
    lookAndFeel->Initialize(settings->GetString(LocaleKey, std::string()), theme);

    // Links open in the preferred browser, which takes "http" and "https" for the process.
    PreferredBrowser browser(lookAndFeel, product, installer);
    const auto links = std::make_shared<LinksManager>(
        customization, app.get<IHardwareInfo>(), lookAndFeel, app.GetMailSettingsManager(), product,
        app.get<IUserSettingsManager>(), app.GetLaunchTypeProcessor(), nullptr, installer);
    app.SetLinksManager(links);

    // The nags (section 4 of the guide): a manager with its dialog, actions and web request, then the
    // tracking in front.
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

    // The window: Language, Theme, Help and the nag on request.
    QMainWindow window;
    window.setWindowTitle(QCoreApplication::applicationName());
    auto* label = new QLabel(QCoreApplication::applicationName(), &window);
    label->setAlignment(Qt::AlignCenter);
    window.setCentralWidget(label);
    window.resize(900, 560);
    QMenu* languageMenu = window.menuBar()->addMenu(QObject::tr("&Language"));
    QMenu* themeMenu = window.menuBar()->addMenu(QObject::tr("&Theme"));
    auto* handler = new LookAndFeelHandler(lookAndFeel, languageMenu, themeMenu, &window);
    handler->SetLocaleList(lookAndFeel->GetLocales());
    handler->SetThemeList(themes);
    handler->SelectLocale(lookAndFeel->GetCurrentLocale());
    handler->SelectTheme(lookAndFeel->GetCurrentTheme());
    handler->Refresh();
    // The shell switches, the product remembers: the user's clicks in the menus.
    QObject::connect(handler, &LookAndFeelHandler::LocaleChanged,
                     [settings](const std::string& locale) { settings->SetString(LocaleKey, locale); });
    QObject::connect(handler, &LookAndFeelHandler::ThemeChanged,
                     [settings](const std::string& chosen) { settings->SetString(ThemeKey, chosen); });
    QMenu* help = window.menuBar()->addMenu(QObject::tr("&Help"));
    for (const auto& [text, key] :
         {std::pair{"&Help Center", HELP_URL_menu}, {"&Privacy Policy", PRIVACY_POLICY_URL}})
        QObject::connect(help->addAction(QObject::tr(text)), &QAction::triggered,
                         [links, key = key]() { links->OpenUrl(key); });
    const auto showNag = [nags]() { nags->ShowNag(NagScreen::AppAction::AppStart()); };
    QObject::connect(help->addAction(QObject::tr("&Special Offer...")), &QAction::triggered, showNag);

    // 5.
    testing.initialize(customization, lookAndFeel, links, nags);

    // 6. The timers first: start() may run a modal loop (a test option's box) until it is answered.
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.contains(QStringLiteral("--show-nag")))
        QTimer::singleShot(0, &app, showNag);
    for (const QString& argument : arguments) {
        if (argument.startsWith(QLatin1String("--quit-after=")))
            QTimer::singleShot(argument.section(QLatin1Char('='), 1).toInt(), &app,
                               [lifetime]() { lifetime->tryToQuit(); });
    }
    window.show();
    lifetime->start();
    // 7.
    return QApplication::exec();
}
