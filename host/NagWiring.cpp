#include "NagWiring.h"

#include "MenuTexts.h"

#include "App/Application/Application.h"
#include "App/Application/NagScreen/DefaultActions.h"
#include "App/Application/NagScreen/DialogStrategy.h"
#include "App/Application/NagScreen/NagIdLockStorage.h"
#include "App/Application/NagScreen/NagLinksOpener.h"
#include "App/Application/NagScreen/NagScreenEventHandler.h"
#include "App/Application/NagScreen/NagScreenTestForm.h"
#include "App/Application/NagScreen/NotificationStrategy.h"
#include "App/Application/NagScreen/ProductNagHosts.h"
#include "App/Application/NagScreen/WebNagUrlGenerator.h"
#include "Core/ProductSettingsManager.h"
#include "Foundation/Utf8.h"
#include "Interfaces/IGateway.h"
#include "Interfaces/IHttpClient.h"
#include "Interfaces/IInternetConnectionChecker.h"
#include "Interfaces/ILaunchTypeProcessor.h"
#include "Interfaces/ILinksManager.h"
#include "Interfaces/ILookAndFeelManager.h"
#include "Interfaces/IMailSettingsManager.h"
#include "Ipc/LocalSocketProtocol.h"
#include "Nag/DefaultNagsSettings.h"
#include "Nag/NagContext.h"
#include "Nag/NagManager.h"
#include "QtUtil/UrlProtocol.h"
#include "Tracking/ApplicationTrackerFactory.h"

#include <glog/logging.h>

#include <QCommandLineParser>
#include <QLocale>
#include <QMenuBar>
#include <QPointer>
#include <QTimer>

using namespace Ostrel;
using namespace Ostrel::App;

namespace {

// The version whose first start showed the welcome nag, in the product settings.
const char* const WelcomedVersionKey = "WelcomedVersion";

// Long enough for a primary started a moment earlier to come to listening.
constexpr int DefaultHandOffTimeoutMs = 5000;

QCommandLineOption openNagOption()
{
    return {QStringLiteral("open-nag"),
            QStringLiteral("Show the nag at URL; a running instance shows it instead of a new one."),
            QStringLiteral("URL")};
}
QCommandLineOption handOffTimeoutOption()
{
    return {QStringLiteral("hand-off-timeout"),
            QStringLiteral("With --open-nag, wait at most MS milliseconds for a running instance to take the "
                           "request (default 5000)."),
            QStringLiteral("MS")};
}
QCommandLineOption dimmingOption()
{
    return {QStringLiteral("nag-dimming"),
            QStringLiteral("Dim the window behind nags with NAME: color, shadow or gif."),
            QStringLiteral("NAME")};
}
QCommandLineOption notificationOption()
{
    return {QStringLiteral("nag-notification"), QStringLiteral("Show nags as desktop notifications.")};
}
QCommandLineOption startNagDelayOption()
{
    return {QStringLiteral("start-nag-delay"),
            QStringLiteral("Show the nag of the start MS milliseconds after the start (800)."),
            QStringLiteral("MS")};
}
QCommandLineOption noStartNagOption()
{
    return {QStringLiteral("no-start-nag"), QStringLiteral("Do not show the nag of the start.")};
}

// The built-in web configuration, with fingerprints on and the host's choice of dimmer on top.
class HostNagsSettings : public WebConfig::DefaultNagsSettings
{
public:
    explicit HostNagsSettings(QString dimming) : m_dimming(std::move(dimming)) {}
    // The sample nags publish fingerprints; the host reports how each one rendered ("NAG_HASH").
    bool sendNagHashEvent() const override { return true; }
    std::string nagDimmingName() const override
    {
        return m_dimming.isEmpty() ? DefaultNagsSettings::nagDimmingName() : Util::QStringToUtf8(m_dimming);
    }
    std::string nagDimmingParameters() const override
    {
        if (m_dimming == QLatin1String("gif"))
            return "fileName=:/host/nag-dimmer.gif,loopCount=infinity";
        if (m_dimming == QLatin1String("shadow"))
            return "shadowPadding=24,blurRadius=40,color=#a0000000";
        if (m_dimming == QLatin1String("color"))
            return "color=#99101828";
        return DefaultNagsSettings::nagDimmingParameters();
    }

private:
    QString m_dimming;
};

} // namespace

class NagWiring::Impl : public Core::ComponentSetterObserver
{
public:
    Application* application = nullptr;
    std::shared_ptr<NagScreen::NagManager> manager;
    std::shared_ptr<LocalSocketProtocol> protocol;
    QString openNagAtStart;
    bool startNag = true;
    int startNagDelayMs = 800;
    std::shared_ptr<NagScreen::INagLinksOpener> linksOpener;
    bool actionsWired = false;
    QPointer<NagScreen::NagScreenTestForm> tester;
    std::shared_ptr<ProductSettingsManager> settings;

    ~Impl() override { application->GetLinksManagerSetter()->UnregisterEventHandler(this); }

    // The actions need the links, which the host sets after the window (for its locale).
    void onSet() override
    {
        const auto links = application->GetLinksManagerSetter()->get();
        if (actionsWired || !links)
            return;
        actionsWired = true;
        // The actions hold the opener weakly; the tracking decorator keeps it from now on.
        linksOpener = NagScreen::fromLinksOpener(links);
        manager->SetActionStrategy(std::make_shared<NagScreen::DefaultActions>(
            links, linksOpener, application->GetCustomizationManager(),
            application->get<IInternetConnectionChecker>(), application->get<Networking::IHttpClient>(),
            application->GetMailSettingsManager()));
        NagScreen::setupNagScreenEventHandler(*application,
                                              Tracking::ApplicationTrackerFactory::getApplicationTracker());
    }
};

void NagWiring::addOptions(QCommandLineParser& parser)
{
    parser.addOption(openNagOption());
    parser.addOption(handOffTimeoutOption());
    parser.addOption(dimmingOption());
    parser.addOption(notificationOption());
    parser.addOption(noStartNagOption());
    parser.addOption(startNagDelayOption());
}

bool NagWiring::handOffToRunningInstance(const QCommandLineParser& parser, LocalSocketProtocol& protocol,
                                         const QString& product)
{
    if (protocol.Listen() || !protocol.IsSecondary() || !parser.isSet(openNagOption()))
        return false;
    bool valid = false;
    int timeoutMs = parser.value(handOffTimeoutOption()).toInt(&valid);
    if (!valid || timeoutMs < 0)
        timeoutMs = DefaultHandOffTimeoutMs;
    if (LocalSocketProtocol::SendOpenNag(product, parser.value(openNagOption()), timeoutMs)) {
        LOG(INFO) << "The running instance shows the requested nag";
        return true;
    }
    LOG(WARNING)
        << "No running instance took the nag request in time; this instance goes on without hand-off";
    return false;
}

NagWiring::NagWiring(Application& application, const QCommandLineParser& parser,
                     const std::shared_ptr<LocalSocketProtocol>& protocol,
                     const std::shared_ptr<ProductSettingsManager>& settings)
    : d(std::make_unique<Impl>())
{
    d->application = &application;
    d->settings = settings;
    const auto nagsSettings = std::make_shared<HostNagsSettings>(parser.value(dimmingOption()));
    d->manager = std::make_shared<NagScreen::NagManager>(settings);
    d->manager->SetNagsSettings(nagsSettings);
    d->manager->SetAppMode(NagScreen::AppMode::Free());
    // The nags' QML reaches only the product's nag server; plain http only while a test run has SSL off.
    d->manager->SetAccessRules(
        {NagScreen::ProductNagHosts(application.GetCustomizationManager().get()), !Util::DefaultSslUsage()});
    // The nags speak the language of the look and feel, which the user may switch at any time.
    d->manager->SetLocaleProvider([app = &application]() {
        const auto lookAndFeel = app->GetLookAndFeel();
        const std::string locale = lookAndFeel ? lookAndFeel->GetCurrentLocale() : std::string();
        return locale.empty() ? QLocale().name() : Util::Utf8ToQString(locale);
    });
    if (parser.isSet(notificationOption()))
        d->manager->SetShowStrategy(std::make_shared<NagScreen::NotificationStrategy>());
    else
        d->manager->SetShowStrategy(std::make_shared<NagScreen::DialogStrategy>(nagsSettings));

    // Listening or not, requests (this instance's own among them) take the protocol's road.
    d->protocol = protocol;
    application.set<IPCBaseProtocol>(d->protocol);
    d->openNagAtStart = parser.value(openNagOption());
    d->startNag = !parser.isSet(noStartNagOption());
    bool valid = false;
    const int delay = parser.value(startNagDelayOption()).toInt(&valid);
    if (valid && delay >= 0)
        d->startNagDelayMs = delay;
    // One storage: the manager locks what a web nag promises, the generator's requests carry it.
    const auto nagIdLocks = std::make_shared<NagScreen::NagIdLockStorage>(settings);
    d->manager->SetNagIdLockStorage(nagIdLocks);
    d->manager->SetWebNagUrlGenerator(
        std::make_shared<NagScreen::WebNagUrlGenerator>(application, nagIdLocks));
    application.SetNagScreenManager(d->manager);
    application.GetLinksManagerSetter()->RegisterEventHandler(d.get());
    d->onSet();
}

NagWiring::~NagWiring() = default;

void NagWiring::showAfterStart(const std::shared_ptr<ExternalStimulus::IGateway>& questions)
{
    // After the main window has painted, so that the nag has something to sit on; and through the
    // gateway of the questions, so that it never covers one (the usage statistics question opens
    // right after the start).
    QTimer::singleShot(d->startNagDelayMs, d->application, [this, questions]() {
        const auto show = [this]() {
            // A request on this instance's own command line takes the same road as one from another.
            if (!d->openNagAtStart.isEmpty())
                Q_EMIT d->protocol->OnOpenNagReceived(d->openNagAtStart);
            else if (d->startNag && welcomeDue())
                d->manager->ShowNag(NagScreen::AppAction::AppStart());
        };
        if (questions)
            questions->post({"StartNag", show});
        else
            show();
    });
}

bool NagWiring::welcomeDue() const
{
    // The welcome greets the first start of each installed version: after an installation or an
    // update, or, without an installer, the first start of a version this user has not run yet.
    // "Don't show again" is the nag manager's to keep.
    const auto launchType = d->application->GetLaunchTypeProcessor();
    const int type = launchType ? launchType->GetLaunchType() : ILaunchTypeProcessor::Regular;
    const std::string version = Util::QStringToUtf8(QCoreApplication::applicationVersion());
    const bool newVersion = d->settings->GetString(WelcomedVersionKey, std::string()) != version;
    d->settings->SetString(WelcomedVersionKey, version);
    return newVersion || type == ILaunchTypeProcessor::FirstAfterInstall ||
           type == ILaunchTypeProcessor::FirstAfterUpdate;
}

void NagWiring::addMenu(QMenuBar& menuBar)
{
    QMenu* tools = menuBar.addMenu(QString());
    auto* texts = new MenuTexts(*tools, "ToolsMenu", QT_TRANSLATE_NOOP("MenuBar", "Tool&s"));
    tools->setObjectName(QStringLiteral("toolsMenu"));
    QAction* tester = texts->addAction(QT_TRANSLATE_NOOP("ToolsMenu", "Nag Screen &Tester..."));
    tester->setObjectName(QStringLiteral("nagTester_action"));
    QObject::connect(tester, &QAction::triggered, &menuBar, [this, &menuBar]() {
        if (!d->tester) {
            d->tester = new NagScreen::NagScreenTestForm(d->manager, menuBar.window());
            d->tester->setWindowFlag(Qt::Window);
            d->tester->setAttribute(Qt::WA_DeleteOnClose);
        }
        d->tester->show();
        d->tester->raise();
        d->tester->activateWindow();
    });
}
