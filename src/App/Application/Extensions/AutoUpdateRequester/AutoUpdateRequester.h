#pragma once

#include "App/Application/Extensions/Extension.h"
#include "App/Application/ostrel_app_export.h"

#include <chrono>
#include <functional>
#include <memory>

namespace Ostrel::App {

class ICustomizationManager;
class IProductSettingsManager;

/// Asks the host for an update check five seconds after the start, unless the product settings
/// say "autoUpdate" = false. What the check does is the host's callback.
class OSTREL_APP_EXPORT AutoUpdateRequester : public Extension
{
public:
    AutoUpdateRequester(const std::shared_ptr<ICustomizationManager>& customizationManager,
                        const std::shared_ptr<IProductSettingsManager>& productSettingsManager);
    /// A pending request dies with the requester.
    ~AutoUpdateRequester() override;

    void onStart() override;
    /// Read when the delay ends, so it may be set after onStart.
    void setAutoUpdateRequestCallback(const std::function<void()>& callback);
    /// The delay of the requests that onStart schedules from now on (5 s unless set).
    void setRequestDelay(std::chrono::milliseconds delay);

private:
    class Impl;
    std::unique_ptr<Impl> d;
};

} // namespace Ostrel::App
