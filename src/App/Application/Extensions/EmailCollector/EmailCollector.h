#pragma once

#include "App/Application/Extensions/Extension.h"
#include "App/Application/ostrel_app_export.h"

#include <memory>

namespace Ostrel::ExternalStimulus {
class IGateway;
}
namespace Ostrel::Networking {
class IHttpClient;
}

namespace Ostrel::App {

class ICustomizationManager;
class ILaunchTypeProcessor;
class ILinksManager;
class IMailSettingsManager;

/// Asks a new user once for an e-mail address and sends it when the user agreed. The steps are
/// public so that a host can drive them itself.
class OSTREL_APP_EXPORT EmailCollector : public Extension
{
public:
    /// The gateway and the HTTP client may be null; any other null argument raises.
    EmailCollector(const std::shared_ptr<ICustomizationManager>& customizationManager,
                   const std::shared_ptr<ILinksManager>& linksManager,
                   const std::shared_ptr<IMailSettingsManager>& mailSettingsManager,
                   const std::shared_ptr<ILaunchTypeProcessor>& launchTypeProcessor,
                   const std::shared_ptr<ExternalStimulus::IGateway>& gateway,
                   const std::shared_ptr<Networking::IHttpClient>& httpClient);
    /// Cuts off a send still running.
    ~EmailCollector() override;

    void onStart() override;

    /// The first launch after the installation, collection switched on, and not registered yet.
    bool needCollectEmail() const;
    /// The user agreed to the newsletter.
    bool needSendEmail() const;
    void showEmailDialog() const;
    void sendUserEmail() const;

private:
    class Impl;
    std::unique_ptr<Impl> d;
};

} // namespace Ostrel::App
