#include "Core/InstallerSettingsManager.h"

#include "Core/SettingsLocations.h"

namespace Ostrel::App {

InstallerSettingsManager::InstallerSettingsManager()
    : SettingsStore(SettingsLocations::filePath(SettingsLocations::Scope::Installer))
{
}

InstallerSettingsManager::InstallerSettingsManager(const QString& filePath) : SettingsStore(filePath) {}

InstallerSettingsManager::~InstallerSettingsManager() = default;

} // namespace Ostrel::App
