#pragma once

#include "Interfaces/ISettingsManager.h"

namespace Ostrel::App {

/// Store of the values written by the installer: install path, architecture, version.
class IInstallerSettingsManager : public virtual ISettingsManager
{
};

} // namespace Ostrel::App
