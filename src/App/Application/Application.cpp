#include "App/Application/Application.h"

#include "App/Application/AppMutexName_p.h"
#include "App/Application/ApplicationImpl_p.h"
#include "App/Application/DirectCallGateway.h"
#include "App/Application/NagScreen/NagRequestPolicy.h"
#include "App/Application/ProductConstants.h"
#include "App/Application/RequiredComponent.h"
#include "App/Application/ShellVersionLines.h"
#include "App/Application/SplashController_p.h"
#include "App/Application/UserActionLog_p.h"
#include "Core/LinksManager.h"
#include "Events/NotNull.h"
#include "Foundation/AppMutexLocker.h"
#include "Foundation/CrashRecord.h"
#include "Foundation/PersonalDataMask.h"
#include "Foundation/Utf8.h"
#include "Interfaces/ICustomizationManager.h"
#include "Interfaces/IGateway.h"
#include "Interfaces/IHardwareInfo.h"
#include "Interfaces/IInstallerSettingsManager.h"
#include "Interfaces/ILaunchTypeProcessor.h"
#include "Interfaces/ILifetimeManager.h"
#include "Interfaces/ILinksManager.h"
#include "Interfaces/ILookAndFeelManager.h"
#include "Interfaces/IMailSettingsManager.h"
#include "Interfaces/IPartnerTracking.h"
#include "Interfaces/IProductSettingsManager.h"
#include "Interfaces/IUserSettingsManager.h"
#include "Ipc/IPCBaseProtocol.h"
#include "Nag/IManager.h"
#include "QtUtil/ApplicationVisibleVersion.h"
#include "QtUtil/HardwareInfoReport.h"

#include <boost/core/demangle.hpp>
#include <boost/exception/diagnostic_information.hpp>

#include <QDateTime>
#include <QElapsedTimer>
#include <QMetaEnum>
#include <QPointer>
#include <QThread>
#include <QTimer>

#include <glog/logging.h>

#include <exception>
#include <typeinfo>

namespace Ostrel::App {
namespace {

constexpr char InstallerMutexName[] = "{8E40B7D3-12AF-49C5-B6E7-0C93F5A1D726}";

// How long CheckRunnedInstaller waits for the installer to let go of its mutex.
constexpr qint64 InstallerWaitNanoseconds = 500 * 1000 * 1000;

} // namespace

const Application::DisableAppMutexT Application::DISABLE_APP_MUTEX{};

Application::Application(int& argc, char** argv, const std::shared_ptr<ILifetimeManager>& lifetimeManager)
    : Application(argc, argv, lifetimeManager, false)
{
}

Application::Application(int& argc, char** argv, const std::shared_ptr<ILifetimeManager>& lifetimeManager,
                         DisableAppMutexT)
    : Application(argc, argv, lifetimeManager, true)
{
}

Application::Application(int& argc, char** argv, const std::shared_ptr<ILifetimeManager>& lifetimeManager,
                         bool mutexDisabled)
    : QApplication(argc, argv), d(std::make_unique<Impl>(*this, lifetimeManager, mutexDisabled))
{
    set<ILifetimeManager>(lifetimeManager);
    set<ExternalStimulus::IGateway>(std::make_shared<ExternalStimulus::DirectCallGateway>());
    QApplication::setEffectEnabled(Qt::UI_AnimateCombo, false);
    // Exceptions that no handler takes (a thread's, a destructor's, a non-std one) still leave a
    // crash record before the process ends.
    Core::InstallTerminateRecorder();
}

// The private part goes first (member before bases), releasing the application mutex; then
// ITopManager destroys the components and its observers; then QApplication deletes a splash
// controller that is still its child.
Application::~Application() = default;

std::shared_ptr<ICustomizationManager> Application::GetCustomizationManager() const
{
    return get<ICustomizationManager>();
}

std::shared_ptr<ExternalStimulus::IGateway> Application::GetExternalStimulusGateway() const
{
    return get<ExternalStimulus::IGateway>();
}

std::shared_ptr<IInstallerSettingsManager> Application::GetInstallerSettingsManager() const
{
    return get<IInstallerSettingsManager>();
}

std::shared_ptr<ILaunchTypeProcessor> Application::GetLaunchTypeProcessor() const
{
    return get<ILaunchTypeProcessor>();
}

std::shared_ptr<ILookAndFeelManager> Application::GetLookAndFeel() const
{
    return get<ILookAndFeelManager>();
}

std::shared_ptr<IMailSettingsManager> Application::GetMailSettingsManager() const
{
    return get<IMailSettingsManager>();
}

std::shared_ptr<NagScreen::IManager> Application::GetNagScreenManager() const
{
    return get<NagScreen::IManager>();
}

std::shared_ptr<IProductSettingsManager> Application::GetProductSettingsManager() const
{
    return get<IProductSettingsManager>();
}

std::shared_ptr<IApplicationSettingsManager> Application::GetSettingsManager() const
{
    return get<IApplicationSettingsManager>();
}

void Application::SetCustomizationManager(const std::shared_ptr<ICustomizationManager>& manager)
{
    set<ICustomizationManager>(manager);
}

void Application::SetExternalStimulusGateway(const std::shared_ptr<ExternalStimulus::IGateway>& gateway)
{
    set<ExternalStimulus::IGateway>(gateway);
}

void Application::SetLaunchTypeProcessor(const std::shared_ptr<ILaunchTypeProcessor>& processor)
{
    set<ILaunchTypeProcessor>(processor);
}

void Application::SetLinksManager(const std::shared_ptr<ILinksManager>& manager)
{
    set<ILinksManager>(manager);
}

void Application::SetLookAndFeel(const std::shared_ptr<ILookAndFeelManager>& manager)
{
    set<ILookAndFeelManager>(manager);
}

void Application::SetNagScreenManager(const std::shared_ptr<NagScreen::IManager>& manager)
{
    set<NagScreen::IManager>(manager);
}

void Application::SetProductVersionLines(const std::vector<std::string>& lines)
{
    d->productVersionLines = lines;
}

std::shared_ptr<ISplash> Application::GetSplash() const
{
    return d->splashController ? d->splashController->splash() : nullptr;
}

void Application::SetSplash(const std::shared_ptr<ISplash>& splash)
{
    if (d->splashController)
        d->splashController->setSplash(splash);
}

std::shared_ptr<Application::LinksManagerSetter> Application::GetLinksManagerSetter() const
{
    return d->linksManagerSetter;
}

std::shared_ptr<ILinksManager> Application::GetLinksManager()
{
    if (auto manager = get<ILinksManager>())
        return manager;
    LOG(ERROR) << "###############################################################";
    LOG(ERROR) << "### Deprecated. SetLinksManager before use GetLinksManager! ###";
    LOG(ERROR) << "###############################################################";
    const char* const user = "LinksManager";
    const auto manager = std::make_shared<LinksManager>(
        requiredComponent<ICustomizationManager>(*this, user), requiredComponent<IHardwareInfo>(*this, user),
        requiredComponent<ILookAndFeelManager>(*this, user),
        requiredComponent<IMailSettingsManager>(*this, user),
        requiredComponent<IProductSettingsManager>(*this, user),
        requiredComponent<IUserSettingsManager>(*this, user),
        requiredComponent<ILaunchTypeProcessor>(*this, user), get<IPartnerTracking>(),
        get<IInstallerSettingsManager>());
    SetLinksManager(manager);
    return manager;
}

QString Application::GetUrl(const URLKeys& key)
{
    return GetLinksManager()->GetUrl(key);
}

int Application::GetDaysPassed() const
{
    const QDateTime now = QDateTime::currentDateTime();
    const auto settings = get<IProductSettingsManager>();
    const uint firstStart =
        settings ? settings->GetUInt(ProductConstants::DateOfFirstStart, now.toTime_t()) : now.toTime_t();
    return static_cast<int>(QDateTime::fromTime_t(firstStart).daysTo(now));
}

bool Application::CheckRunnedInstaller()
{
    Util::AppMutexLocker locker(InstallerMutexName);
    if (locker.TryLockAppMutex())
        return false;

    QElapsedTimer timer;
    timer.start();
    for (;;) {
        if (timer.nsecsElapsed() > InstallerWaitNanoseconds)
            return true;
        if (locker.TryLockAppMutex())
            return false;
        QThread::msleep(1);
    }
}

std::string Application::GetAppMutexName()
{
    return AppMutexNameFor(QCoreApplication::organizationName(), QCoreApplication::applicationName());
}

namespace {

// Qt's modal loops (QDialog::exec, QMenu::exec, ...) are not exception-safe: an exception that
// unwinds through one leaves the dialog pointing at its dead loop, and the dialog's destructor
// then crashes. So is any loop nested in another, and any modal box shown before the main loop.
bool unwindingIsUnsafe(const QObject& application)
{
    const QThread* const thread = QThread::currentThread();
    if (thread->loopLevel() > 1)
        return true;
    return thread == application.thread() && QApplication::activeModalWidget() != nullptr;
}

// Runs inside the catch of notify, so that the exception in flight can be inspected and rethrown.
// Kept out of notify's body: its locals would otherwise make every event save and restore the
// registers they need.
[[gnu::cold, gnu::noinline]] void handleEventException(QObject* receiver, QEvent* event)
{
    const std::exception_ptr current = std::current_exception();
    try {
        std::rethrow_exception(current);
    } catch (const std::exception& exception) {
        // An exception that crosses nested event loops passes one notify frame per loop: the
        // innermost one, which knows the receiver, recorded it; the others only pass it on.
        if (Core::CurrentExceptionRecorded())
            throw;
        const std::string receiverClass =
            receiver ? boost::core::demangle(typeid(*receiver).name()) : "<NULL>";
        const std::string eventClass = boost::core::demangle(typeid(*event).name());
        const char* typeName = QMetaEnum::fromType<QEvent::Type>().valueToKey(event->type());
        LOG(ERROR) << "Exception has been caught in event processing\n"
                   << "\tReceiver: " << receiverClass << "\n"
                   << "\tEvent class: " << eventClass
                   << ". Event type: QEvent::" << (typeName ? typeName : "") << "\n"
                   << "\tException details: " << boost::diagnostic_information(exception, true);
        const std::string receiverName =
            receiver ? Util::QStringToUtf8(receiver->objectName()) : std::string();
        Core::TrackCurrentException("Receiver: " + receiverClass + " \"" + receiverName +
                                    "\"; event: QEvent::" + (typeName ? typeName : ""));
        // Recorded already: the terminate handler adds no second record.
        if (unwindingIsUnsafe(*QCoreApplication::instance()))
            std::terminate();
        throw;
    } catch (...) {
        // Not ours to log; the terminate handler records it, as it would at the end of main.
        if (unwindingIsUnsafe(*QCoreApplication::instance()))
            std::terminate();
        throw;
    }
}

// QApplication's delivery inside the guard. The handler needs the receiver and the event, and
// nothing else of the caller: all the frame keeps for it.
inline bool guardedNotify(QApplication& application, QObject* receiver, QEvent* event)
{
    try {
        return application.QApplication::notify(receiver, event);
    } catch (...) {
        handleEventException(receiver, event);
        throw; // not reached: the handler rethrows or terminates
    }
}

[[gnu::noinline]] bool notifyUserAction(QApplication& application, QObject* receiver, QEvent* event)
{
    LogUserAction(receiver, event);
    return guardedNotify(application, receiver, event);
}

} // namespace

bool Application::notify(QObject* receiver, QEvent* event)
{
    // Tested here, before any call, so that every other event costs one comparison.
    const QEvent::Type type = event->type();
    if (Q_UNLIKELY(type == QEvent::MouseButtonPress || type == QEvent::Shortcut))
        return notifyUserAction(*this, receiver, event);
    return guardedNotify(*this, receiver, event);
}

// ---------------------------------------------------------------------------------------------

Application::Impl::Impl(Application& app, const std::shared_ptr<ILifetimeManager>& lifetimeManager,
                        bool mutexDisabled)
    : application(app)
{
    // Without a lifetime manager nothing can start; refuse it before anything registers.
    const Core::NotNull<std::shared_ptr<ILifetimeManager>> lifetime(lifetimeManager);

    if (!mutexDisabled)
        appMutexLocker = std::make_unique<Util::AppMutexLocker>(GetAppMutexName());
    splashController = new SplashController(&application, *lifetime.get(), nullptr);
    linksManagerSetter = std::make_shared<LinksManagerSetter>();
    // A second instance is deliberately not refused here: the product decides that elsewhere.
    if (appMutexLocker)
        appMutexLocker->TryLockAppMutex();
    application.RegisterEventHandler(this);
    // The product's lifetime manager may outlive the application and start after it is gone: the
    // callback goes with this object's own QObject.
    lifetime->addOnStartCallback([this, alive = QPointer<QObject>(&requestContext)]() {
        if (alive)
            onStart();
    });
}

Application::Impl::~Impl()
{
    application.UnregisterEventHandler(this);
}

void Application::Impl::onStart()
{
    application.fetchAllComponents();
    splashController->deleteLater();
    splashController = nullptr;
}

void Application::Impl::onComponentChanged(const std::shared_ptr<ICustomizationManager>& manager,
                                           const std::shared_ptr<ICustomizationManager>&)
{
    // Null is stored like any other value, but there is no identity to take from it.
    if (!manager)
        return;
    QCoreApplication::setApplicationName(Util::Utf8ToQString(manager->GetApplicationName()));
    QCoreApplication::setApplicationVersion(Util::GenerateApplicationVisibleVersion(manager->GetVersion()));
    QCoreApplication::setOrganizationName(Util::Utf8ToQString(manager->GetOrganizationName()));

    if (FLAGS_minloglevel > google::GLOG_INFO)
        return;
    LOG(INFO) << "Application started from " << Util::QStringToUtf8(QCoreApplication::applicationFilePath());
    LOG(INFO) << "Product Version: " << Util::QStringToUtf8(QCoreApplication::applicationVersion());
    for (const std::string& line : productVersionLines)
        LOG(INFO) << line;
    for (const std::string& line : ShellVersionLines())
        LOG(INFO) << line;
    if (FLAGS_v >= 1)
        LOG(INFO) << "Verbose logging enabled. Level=" << FLAGS_v;
    LOG(INFO) << Util::QStringToUtf8(Util::GetHardwareInfo(*manager));
}

void Application::Impl::onComponentChanged(const std::shared_ptr<ILaunchTypeProcessor>& processor,
                                           const std::shared_ptr<ILaunchTypeProcessor>&)
{
    if (!processor || processor->GetLaunchType() == ILaunchTypeProcessor::Background)
        return;

    const auto settings = application.get<IProductSettingsManager>();
    const auto customization = application.get<ICustomizationManager>();
    if (!settings || !customization) {
        LOG(ERROR) << "The launch type processor was set before the customization manager and the product "
                      "settings manager; the partner name is left as it was";
        return;
    }

    const std::string overrideKey =
        std::string(ProductConstants::PartnerName) + ProductConstants::OverrideSuffix;
    std::string partner = customization->GetPartnerName();
    if (settings->Has(overrideKey)) {
        const std::string overridden = settings->GetString(overrideKey, std::string());
        if (!overridden.empty())
            partner = overridden;
        settings->Remove(overrideKey);
    }
    settings->SetString(ProductConstants::PartnerName, partner);
}

void Application::Impl::onComponentChanged(const std::shared_ptr<ILinksManager>& manager,
                                           const std::shared_ptr<ILinksManager>&)
{
    linksManagerSetter->set(manager);
}

void Application::Impl::onComponentChanged(const std::shared_ptr<IPCBaseProtocol>& protocol,
                                           const std::shared_ptr<IPCBaseProtocol>&)
{
    if (protocol)
        QObject::connect(protocol.get(), &IPCBaseProtocol::OnOpenNagReceived, &application,
                         [this](const QString& url) { openNag(url); });
}

void Application::Impl::onComponentChanged(const std::shared_ptr<NagScreen::IManager>& manager,
                                           const std::shared_ptr<NagScreen::IManager>&)
{
    if (manager && !pendingNagUrl.isEmpty())
        openNag(pendingNagUrl);
}

void Application::Impl::openNag(const QString& url)
{
    // Kept after use: a nag manager set later shows the last request again.
    pendingNagUrl = url;
    const auto manager = application.get<NagScreen::IManager>();
    if (!manager)
        return;
    // A burst of requests must not stack modal loops: while one requested nag shows, the latest
    // request waits for it.
    if (requestedNagOnScreen) {
        waitingNagUrl = url;
        return;
    }
    showRequestedNag(*manager, url);
}

void Application::Impl::showRequestedNag(NagScreen::IManager& manager, const QString& url)
{
    const QUrl nagUrl(QUrl::fromPercentEncoding(url.toUtf8()));
    const auto policy = NagScreen::NagRequestPolicy::ForProduct(
        application.get<ICustomizationManager>().get(), manager.GetNagConfig().get());
    const QString refusal = policy.Refusal(nagUrl);
    if (!refusal.isEmpty()) {
        LOG(WARNING) << "Nag request refused, " << Util::QStringToUtf8(refusal) << ": \""
                     << Util::QStringToUtf8(Core::PersonalDataMask::mask(url.left(2048))) << "\"";
        return;
    }
    struct OnScreen
    {
        bool& flag;
        ~OnScreen() { flag = false; }
    } onScreen{requestedNagOnScreen};
    requestedNagOnScreen = true;
    manager.AddNag(manager.GetAppMode(), QStringLiteral("open_nag"), nagUrl, std::string(), std::string(), 0);
    manager.ShowNag(QStringLiteral("open_nag"));
    if (waitingNagUrl) {
        // From the event loop, once this nag's loop has unwound.
        QTimer::singleShot(0, &requestContext, [this, next = *waitingNagUrl]() { openNag(next); });
        waitingNagUrl.reset();
    }
}

} // namespace Ostrel::App
