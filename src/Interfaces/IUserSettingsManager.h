#pragma once

#include "Interfaces/ISettingsManager.h"

namespace Ostrel::App {

/// Store of the settings of the user: web identity, preferences.
class IUserSettingsManager : public virtual ISettingsManager
{
};

} // namespace Ostrel::App
