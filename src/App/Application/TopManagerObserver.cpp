#include "App/Application/TopManagerObserver.h"

namespace Ostrel::App {

TopManagerObserver::~TopManagerObserver() = default;

void TopManagerObserver::onComponentChanged(const std::shared_ptr<void>&, const std::shared_ptr<void>&) {}
void TopManagerObserver::onComponentChanged(const std::shared_ptr<IApplicationSettingsManager>&,
                                            const std::shared_ptr<IApplicationSettingsManager>&)
{
}
void TopManagerObserver::onComponentChanged(const std::shared_ptr<ICustomizationManager>&,
                                            const std::shared_ptr<ICustomizationManager>&)
{
}
void TopManagerObserver::onComponentChanged(const std::shared_ptr<IIdleManager>&,
                                            const std::shared_ptr<IIdleManager>&)
{
}
void TopManagerObserver::onComponentChanged(const std::shared_ptr<IInstallerSettingsManager>&,
                                            const std::shared_ptr<IInstallerSettingsManager>&)
{
}
void TopManagerObserver::onComponentChanged(const std::shared_ptr<IInternetConnectionChecker>&,
                                            const std::shared_ptr<IInternetConnectionChecker>&)
{
}
void TopManagerObserver::onComponentChanged(const std::shared_ptr<ILifetimeManager>&,
                                            const std::shared_ptr<ILifetimeManager>&)
{
}
void TopManagerObserver::onComponentChanged(const std::shared_ptr<ILaunchTypeProcessor>&,
                                            const std::shared_ptr<ILaunchTypeProcessor>&)
{
}
void TopManagerObserver::onComponentChanged(const std::shared_ptr<ILinksManager>&,
                                            const std::shared_ptr<ILinksManager>&)
{
}
void TopManagerObserver::onComponentChanged(const std::shared_ptr<ILookAndFeelManager>&,
                                            const std::shared_ptr<ILookAndFeelManager>&)
{
}
void TopManagerObserver::onComponentChanged(const std::shared_ptr<IMailSettingsManager>&,
                                            const std::shared_ptr<IMailSettingsManager>&)
{
}
void TopManagerObserver::onComponentChanged(const std::shared_ptr<IPCBaseProtocol>&,
                                            const std::shared_ptr<IPCBaseProtocol>&)
{
}
void TopManagerObserver::onComponentChanged(const std::shared_ptr<IPartnerTracking>&,
                                            const std::shared_ptr<IPartnerTracking>&)
{
}
void TopManagerObserver::onComponentChanged(const std::shared_ptr<IProductSettingsManager>&,
                                            const std::shared_ptr<IProductSettingsManager>&)
{
}
void TopManagerObserver::onComponentChanged(const std::shared_ptr<IUserSettingsManager>&,
                                            const std::shared_ptr<IUserSettingsManager>&)
{
}
void TopManagerObserver::onComponentChanged(const std::shared_ptr<Web::IAccountController>&,
                                            const std::shared_ptr<Web::IAccountController>&)
{
}
void TopManagerObserver::onComponentChanged(const std::shared_ptr<IHardwareInfo>&,
                                            const std::shared_ptr<IHardwareInfo>&)
{
}
void TopManagerObserver::onComponentChanged(const std::shared_ptr<NagScreen::IManager>&,
                                            const std::shared_ptr<NagScreen::IManager>&)
{
}
void TopManagerObserver::onComponentChanged(const std::shared_ptr<WebSocket::IMessageBroker>&,
                                            const std::shared_ptr<WebSocket::IMessageBroker>&)
{
}
void TopManagerObserver::onComponentChanged(const std::shared_ptr<Ostrel::ExternalStimulus::IGateway>&,
                                            const std::shared_ptr<Ostrel::ExternalStimulus::IGateway>&)
{
}
void TopManagerObserver::onComponentChanged(const std::shared_ptr<Ostrel::Networking::IHttpClient>&,
                                            const std::shared_ptr<Ostrel::Networking::IHttpClient>&)
{
}
void TopManagerObserver::onComponentChanged(const std::shared_ptr<Ostrel::Tracking::GeneralOstrelTracker>&,
                                            const std::shared_ptr<Ostrel::Tracking::GeneralOstrelTracker>&)
{
}

} // namespace Ostrel::App
