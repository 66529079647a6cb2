#pragma once

#include "App/Application/ostrel_app_export.h"

#include <memory>

namespace Ostrel::App {

class IApplicationSettingsManager;
class ICustomizationManager;

/// Asks the user, once, for leave to send anonymous usage statistics and stores the answer in
/// "sendStatistics"; "is_first_show_appstore_statistic" turns false after the one answer. A user
/// who already agreed is never asked. The host chooses when to call it.
OSTREL_APP_EXPORT void requestAppStoreStatistics(const std::shared_ptr<IApplicationSettingsManager>& settings,
                                                 const std::shared_ptr<ICustomizationManager>& customization);

} // namespace Ostrel::App
