#pragma once

#include "App/Application/ITopManager.h"
#include "App/Application/ostrel_app_export.h"

namespace Ostrel::App {

/// An observer of the application context that cares for no component until a subclass overrides
/// the reaction of the components it cares for.
class OSTREL_APP_EXPORT TopManagerObserver : public ApplicationContextObserver
{
public:
    ~TopManagerObserver() override;

    void onComponentChanged(const std::shared_ptr<void>& newValue,
                            const std::shared_ptr<void>& oldValue) override;
    void onComponentChanged(const std::shared_ptr<IApplicationSettingsManager>& newValue,
                            const std::shared_ptr<IApplicationSettingsManager>& oldValue) override;
    void onComponentChanged(const std::shared_ptr<ICustomizationManager>& newValue,
                            const std::shared_ptr<ICustomizationManager>& oldValue) override;
    void onComponentChanged(const std::shared_ptr<IIdleManager>& newValue,
                            const std::shared_ptr<IIdleManager>& oldValue) override;
    void onComponentChanged(const std::shared_ptr<IInstallerSettingsManager>& newValue,
                            const std::shared_ptr<IInstallerSettingsManager>& oldValue) override;
    void onComponentChanged(const std::shared_ptr<IInternetConnectionChecker>& newValue,
                            const std::shared_ptr<IInternetConnectionChecker>& oldValue) override;
    void onComponentChanged(const std::shared_ptr<ILifetimeManager>& newValue,
                            const std::shared_ptr<ILifetimeManager>& oldValue) override;
    void onComponentChanged(const std::shared_ptr<ILaunchTypeProcessor>& newValue,
                            const std::shared_ptr<ILaunchTypeProcessor>& oldValue) override;
    void onComponentChanged(const std::shared_ptr<ILinksManager>& newValue,
                            const std::shared_ptr<ILinksManager>& oldValue) override;
    void onComponentChanged(const std::shared_ptr<ILookAndFeelManager>& newValue,
                            const std::shared_ptr<ILookAndFeelManager>& oldValue) override;
    void onComponentChanged(const std::shared_ptr<IMailSettingsManager>& newValue,
                            const std::shared_ptr<IMailSettingsManager>& oldValue) override;
    void onComponentChanged(const std::shared_ptr<IPCBaseProtocol>& newValue,
                            const std::shared_ptr<IPCBaseProtocol>& oldValue) override;
    void onComponentChanged(const std::shared_ptr<IPartnerTracking>& newValue,
                            const std::shared_ptr<IPartnerTracking>& oldValue) override;
    void onComponentChanged(const std::shared_ptr<IProductSettingsManager>& newValue,
                            const std::shared_ptr<IProductSettingsManager>& oldValue) override;
    void onComponentChanged(const std::shared_ptr<IUserSettingsManager>& newValue,
                            const std::shared_ptr<IUserSettingsManager>& oldValue) override;
    void onComponentChanged(const std::shared_ptr<Web::IAccountController>& newValue,
                            const std::shared_ptr<Web::IAccountController>& oldValue) override;
    void onComponentChanged(const std::shared_ptr<IHardwareInfo>& newValue,
                            const std::shared_ptr<IHardwareInfo>& oldValue) override;
    void onComponentChanged(const std::shared_ptr<NagScreen::IManager>& newValue,
                            const std::shared_ptr<NagScreen::IManager>& oldValue) override;
    void onComponentChanged(const std::shared_ptr<WebSocket::IMessageBroker>& newValue,
                            const std::shared_ptr<WebSocket::IMessageBroker>& oldValue) override;
    void onComponentChanged(const std::shared_ptr<Ostrel::ExternalStimulus::IGateway>& newValue,
                            const std::shared_ptr<Ostrel::ExternalStimulus::IGateway>& oldValue) override;
    void onComponentChanged(const std::shared_ptr<Ostrel::Networking::IHttpClient>& newValue,
                            const std::shared_ptr<Ostrel::Networking::IHttpClient>& oldValue) override;
    void onComponentChanged(const std::shared_ptr<Ostrel::Tracking::GeneralOstrelTracker>& newValue,
                            const std::shared_ptr<Ostrel::Tracking::GeneralOstrelTracker>& oldValue) override;
};

} // namespace Ostrel::App
