#pragma once

#include "App/Application/ostrel_app_export.h"
#include "Nag/IShowStrategy.h"
#include "Notification/NotificationPopup.h"

namespace Ostrel::App::NagScreen {

/// Shows a nag as a desktop notification popup, undimmed. Returns 0 for every ending.
class OSTREL_APP_EXPORT NotificationStrategy : public IShowStrategy
{
public:
    NotificationStrategy() = default;
    ~NotificationStrategy() override = default;
    NotificationStrategy(const NotificationStrategy&) = default;
    NotificationStrategy(NotificationStrategy&&) = default;
    NotificationStrategy& operator=(const NotificationStrategy&) = default;
    NotificationStrategy& operator=(NotificationStrategy&&) = default;

    int ShowNag(AbstractContent& content) override;

    /// How long the popup fades in and out.
    void SetFadeDuration(int milliseconds);

private:
    int m_fadeMs = DesktopNotification::NotificationPopup::DefaultFadeMs;
};

} // namespace Ostrel::App::NagScreen
