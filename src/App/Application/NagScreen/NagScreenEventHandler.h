#pragma once

#include "App/Application/ostrel_app_export.h"

#include <memory>

namespace Ostrel::Tracking {
class IApplicationTracker;
}

namespace Ostrel::App {
class ITopManager;
}

namespace Ostrel::App::NagScreen {

/// Puts the tracking of every step of a nag's life in front of the nag manager's show strategy,
/// its action strategy (which must be a DefaultActions) and that strategy's links opener. Call it
/// once, after the manager has its strategies. A null tracker forwards everything and sends
/// nothing.
///
/// Events: "NAG_SHOW", "NAG_FAILED", "NAG_CLOSE", "NAG_SCREEN_SHOW", "NAG_BUTTON_CLICK",
/// "CUSTOM_ACTION_PERFORMED", "NAG_LINK_CLICK" and "NAG_HASH" with the fingerprint verdict.
///
/// Throws std::logic_error when the context has no nag manager, when its action strategy isn't a
/// DefaultActions, or when a strategy, the links opener or the links manager is missing.
OSTREL_APP_EXPORT void
setupNagScreenEventHandler(const ITopManager& top,
                           const std::shared_ptr<Tracking::IApplicationTracker>& tracker);

} // namespace Ostrel::App::NagScreen
