#pragma once

#include "App/Application/Application.h"
#include "App/Application/TopManagerObserver.h"

#include <QObject>
#include <QString>

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace Ostrel::Util {
class AppMutexLocker;
}

namespace Ostrel::App {

class SplashController;

/// Reacts to components as they arrive: the application identity and start banner, the partner
/// name override, the links manager slot.
class Application::Impl : public TopManagerObserver
{
public:
    Impl(Application& application, const std::shared_ptr<ILifetimeManager>& lifetimeManager,
         bool mutexDisabled);
    ~Impl() override;
    Impl(const Impl&) = delete;
    Impl& operator=(const Impl&) = delete;

    void onComponentChanged(const std::shared_ptr<ICustomizationManager>& newValue,
                            const std::shared_ptr<ICustomizationManager>& oldValue) override;
    void onComponentChanged(const std::shared_ptr<ILaunchTypeProcessor>& newValue,
                            const std::shared_ptr<ILaunchTypeProcessor>& oldValue) override;
    void onComponentChanged(const std::shared_ptr<ILinksManager>& newValue,
                            const std::shared_ptr<ILinksManager>& oldValue) override;
    void onComponentChanged(const std::shared_ptr<IPCBaseProtocol>& newValue,
                            const std::shared_ptr<IPCBaseProtocol>& oldValue) override;
    void onComponentChanged(const std::shared_ptr<NagScreen::IManager>& newValue,
                            const std::shared_ptr<NagScreen::IManager>& oldValue) override;
    using TopManagerObserver::onComponentChanged;

    // The fields keep this order: destruction releases the links slot and the pending URL before
    // the application mutex.
    Application& application;
    std::unique_ptr<Util::AppMutexLocker> appMutexLocker;
    SplashController* splashController = nullptr;
    QString pendingNagUrl;
    std::shared_ptr<LinksManagerSetter> linksManagerSetter;
    std::vector<std::string> productVersionLines;

private:
    void onStart();
    /// A nag asked for by another process: remembered, and opened as soon as a nag manager is there.
    void openNag(const QString& url);
    /// Shows the requested nag if the product could show it anyway; one nag on screen at a time.
    void showRequestedNag(NagScreen::IManager& manager, const QString& url);

    // A request that came while a requested nag was on screen: the latest one, shown after it.
    bool requestedNagOnScreen = false;
    std::optional<QString> waitingNagUrl;
    // Context of the queued showing of the waiting request: it goes with this object.
    QObject requestContext;
};

} // namespace Ostrel::App
