#pragma once

#include "App/Application/IHttpRequestUpdater.h"
#include "App/Application/ostrel_app_export.h"

#include <memory>

namespace Ostrel::App {

class ITopManager;

/// An HttpRequestUpdater over the context's customization, user settings and hardware info;
/// a missing one raises NotNull's std::logic_error.
OSTREL_APP_EXPORT std::shared_ptr<IHttpRequestUpdater> createDefaultUpdater(const ITopManager& topManager);

/// The same over the running Application; std::logic_error when the process has none.
OSTREL_APP_EXPORT std::shared_ptr<IHttpRequestUpdater> createDefaultUpdater();

} // namespace Ostrel::App
