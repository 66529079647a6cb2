#pragma once

#include "Context/IApplicationContext.h"

namespace Ostrel::App {
class IApplicationSettingsManager;
class ICustomizationManager;
class IIdleManager;
class IInstallerSettingsManager;
class IInternetConnectionChecker;
class ILifetimeManager;
class ILaunchTypeProcessor;
class ILinksManager;
class ILookAndFeelManager;
class IMailSettingsManager;
class IPCBaseProtocol;
class IPartnerTracking;
class IProductSettingsManager;
class IUserSettingsManager;
class IHardwareInfo;
namespace Web {
class IAccountController;
}
namespace NagScreen {
class IManager;
}
namespace WebSocket {
class IMessageBroker;
}
} // namespace Ostrel::App

namespace Ostrel::ExternalStimulus {
class IGateway;
}
namespace Ostrel::Networking {
class IHttpClient;
}
namespace Ostrel::Tracking {
class GeneralOstrelTracker;
}

namespace Ostrel::App {

/// The product's component list. The order is that of the observer bases and of every walk over
/// the components; new components go at the end.
using ApplicationContext = IApplicationContext<
    void, IApplicationSettingsManager, ICustomizationManager, IIdleManager, IInstallerSettingsManager,
    IInternetConnectionChecker, ILifetimeManager, ILaunchTypeProcessor, ILinksManager, ILookAndFeelManager,
    IMailSettingsManager, IPCBaseProtocol, IPartnerTracking, IProductSettingsManager, IUserSettingsManager,
    Web::IAccountController, IHardwareInfo, NagScreen::IManager, WebSocket::IMessageBroker,
    ExternalStimulus::IGateway, Networking::IHttpClient, Tracking::GeneralOstrelTracker>;

/// The application context: any service is reachable by its interface type.
class ITopManager : public ApplicationContext
{
};

/// The observer of every component of the application context.
using ApplicationContextObserver = ApplicationContext::Observer;

} // namespace Ostrel::App
