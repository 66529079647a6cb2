#pragma once

#include "Interfaces/ISettingsManager.h"

namespace Ostrel::App {

/// Store of the application-wide settings of the product, shared by its modules.
class IApplicationSettingsManager : public virtual ISettingsManager
{
};

} // namespace Ostrel::App
