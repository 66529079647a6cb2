#pragma once

#include "Core/SettingsStore.h"
#include "Core/ostrel_core_export.h"
#include "Interfaces/IInstallerSettingsManager.h"

namespace Ostrel::App {

/// The values the installer wrote (install path, architecture, "Version"); the shell mostly reads them.
/// Lives in its own file, by default SettingsLocations::filePath(Scope::Installer).
class OSTREL_CORE_EXPORT InstallerSettingsManager : public IInstallerSettingsManager, public SettingsStore
{
public:
    /// Opens the scope's default file.
    InstallerSettingsManager();
    /// Opens the INI file at `filePath` instead (tests, a product with its own layout).
    explicit InstallerSettingsManager(const QString& filePath);
    ~InstallerSettingsManager() override;
};

} // namespace Ostrel::App
