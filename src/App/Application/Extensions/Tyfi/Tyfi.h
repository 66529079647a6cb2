#pragma once

#include "App/Application/Extensions/Extension.h"
#include "App/Application/Extensions/Tyfi/OpenWindowWaiter.h"
#include "App/Application/ostrel_app_export.h"

#include <functional>
#include <memory>

namespace Ostrel::ExternalStimulus {
class IGateway;
}

namespace Ostrel::App {

class ICustomizationManager;
class IInstallerSettingsManager;
class ILaunchTypeProcessor;
class ILinksManager;
class IProductSettingsManager;

/// Opens the thank-you (or purchase) page after the product's first launches, once the product's
/// own window shows, or after 12 s without one. "TYFI_CHECK_WINDOW" tells tracking how many
/// attempts the wait took.
class OSTREL_APP_EXPORT Tyfi : public Extension
{
public:
    /// Only the gateway may be null.
    Tyfi(const std::shared_ptr<ICustomizationManager>& customizationManager,
         const std::shared_ptr<ILinksManager>& linksManager,
         const std::shared_ptr<IInstallerSettingsManager>& installerSettingsManager,
         const std::shared_ptr<IProductSettingsManager>& productSettingsManager,
         const std::shared_ptr<ILaunchTypeProcessor>& launchTypeProcessor,
         const std::shared_ptr<ExternalStimulus::IGateway>& gateway);
    /// Stops a wait still running without sitting out its pause.
    ~Tyfi() override;

    void onStart() override;
    /// Decides instead of the built-in rule whether the page is wanted; asked before the wait and
    /// again before the page opens. An empty function restores the rule.
    void setCustomNeedOpenChecker(const std::function<bool()>& checker);
    /// The attempts and the pause of the waits that onStart begins from now on (40 x 300 ms
    /// unless set).
    void setWaitTimings(const WindowWaitTimings& timings);

private:
    class Impl;
    std::unique_ptr<Impl> d;
};

} // namespace Ostrel::App
