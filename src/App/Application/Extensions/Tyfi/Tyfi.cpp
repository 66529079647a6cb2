#include "App/Application/Extensions/Tyfi/Tyfi.h"

#include "App/Application/ProductConstants.h"
#include "Events/NotNull.h"
#include "Interfaces/ICustomizationManager.h"
#include "Interfaces/IGateway.h"
#include "Interfaces/IInstallerSettingsManager.h"
#include "Interfaces/ILaunchTypeProcessor.h"
#include "Interfaces/ILinksManager.h"
#include "Interfaces/IProductSettingsManager.h"
#include "Tracking/ApplicationTrackerFactory.h"

#include <QCoreApplication>

#include <string>

namespace Ostrel::App {

namespace {
constexpr int FirstLaunchType = 1;
constexpr int BackgroundLaunchType = 4;
constexpr char TrackerEvent[] = "TYFI_CHECK_WINDOW";
constexpr char AttemptCountParam[] = "ATTEMPT_COUNT";
constexpr char GatewayAction[] = "THANK_FOR_INSTALL";
} // namespace

class Tyfi::Impl
{
public:
    Impl(const std::shared_ptr<ICustomizationManager>& customization,
         const std::shared_ptr<ILinksManager>& links,
         const std::shared_ptr<IInstallerSettingsManager>& installerSettings,
         const std::shared_ptr<IProductSettingsManager>& productSettings,
         const std::shared_ptr<ILaunchTypeProcessor>& launchType,
         const std::shared_ptr<ExternalStimulus::IGateway>& gatewayArgument)
        : customizationManager(customization), linksManager(links),
          installerSettingsManager(installerSettings), productSettingsManager(productSettings),
          launchTypeProcessor(launchType), gateway(gatewayArgument)
    {
    }

    bool needOpen() const
    {
        if (customNeedOpenChecker)
            return customNeedOpenChecker();
        return launchTypeProcessor->GetLaunchType() != BackgroundLaunchType &&
               !customizationManager->GetPageType().empty() &&
               productSettingsManager->GetString(ProductConstants::BundleName, std::string()).empty();
    }

    void openPage() const
    {
        if (!needOpen())
            return;
        const std::string pageType = customizationManager->GetPageType();
        QString url;
        if (pageType == "thankyou") {
            url = linksManager->GetUrl(launchTypeProcessor->GetLaunchType() == FirstLaunchType
                                           ? URLKeys::THANK_FOR_INSTALL_URL
                                           : URLKeys::THANK_FOR_REINSTALL_URL);
        } else if (pageType == "buynow") {
            url = linksManager->GetUrl(URLKeys::BUY_NOW_URL_firststart);
        }
        if (!url.isEmpty())
            linksManager->OpenUrl(url);
    }

    void finished(int attemptCount)
    {
        if (const auto tracker = Tracking::ApplicationTrackerFactory::getApplicationTracker())
            tracker->sendEvent(TrackerEvent, {{AttemptCountParam, std::to_string(attemptCount)}});
        if (gateway) {
            const std::weak_ptr<bool> alive = aliveToken;
            gateway->post({GatewayAction, [this, alive]() {
                               if (alive.lock())
                                   openPage();
                           }});
        } else {
            openPage();
        }
    }

    Core::NotNull<std::shared_ptr<ICustomizationManager>> customizationManager;
    Core::NotNull<std::shared_ptr<ILinksManager>> linksManager;
    Core::NotNull<std::shared_ptr<IInstallerSettingsManager>> installerSettingsManager;
    Core::NotNull<std::shared_ptr<IProductSettingsManager>> productSettingsManager;
    Core::NotNull<std::shared_ptr<ILaunchTypeProcessor>> launchTypeProcessor;
    std::shared_ptr<ExternalStimulus::IGateway> gateway;
    std::unique_ptr<OpenWindowWaiter> waiter;
    std::function<bool()> customNeedOpenChecker;
    WindowWaitTimings waitTimings;
    // Handlers that may run after this object is gone (a queued Finished, a gateway that holds
    // actions back) check it first.
    std::shared_ptr<bool> aliveToken = std::make_shared<bool>(true);
};

Tyfi::Tyfi(const std::shared_ptr<ICustomizationManager>& customizationManager,
           const std::shared_ptr<ILinksManager>& linksManager,
           const std::shared_ptr<IInstallerSettingsManager>& installerSettingsManager,
           const std::shared_ptr<IProductSettingsManager>& productSettingsManager,
           const std::shared_ptr<ILaunchTypeProcessor>& launchTypeProcessor,
           const std::shared_ptr<ExternalStimulus::IGateway>& gateway)
    : d(std::make_unique<Impl>(customizationManager, linksManager, installerSettingsManager,
                               productSettingsManager, launchTypeProcessor, gateway))
{
}

Tyfi::~Tyfi() = default;

void Tyfi::onStart()
{
    if (!d->needOpen())
        return;
    d->waiter = std::make_unique<OpenWindowWaiter>(d->waitTimings);
    Impl* impl = d.get();
    const OpenWindowWaiter* waiter = d->waiter.get();
    const std::weak_ptr<bool> alive = d->aliveToken;
    // Queued to the GUI thread. A late delivery for a waiter that has since been replaced, or for
    // a Tyfi that is gone, is dropped.
    QObject::connect(d->waiter.get(), &OpenWindowWaiter::Finished, QCoreApplication::instance(),
                     [impl, waiter, alive](int attemptCount) {
                         if (alive.lock() && impl->waiter.get() == waiter)
                             impl->finished(attemptCount);
                     });
    d->waiter->Start();
}

void Tyfi::setCustomNeedOpenChecker(const std::function<bool()>& checker)
{
    d->customNeedOpenChecker = checker;
}

void Tyfi::setWaitTimings(const WindowWaitTimings& timings)
{
    d->waitTimings = timings;
}

} // namespace Ostrel::App
