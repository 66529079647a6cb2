#include "Core/UserSettingsManager.h"

#include "Core/SettingsLocations.h"

namespace Ostrel::App {

UserSettingsManager::UserSettingsManager()
    : SettingsStore(SettingsLocations::filePath(SettingsLocations::Scope::User))
{
}

UserSettingsManager::UserSettingsManager(const QString& filePath) : SettingsStore(filePath) {}

UserSettingsManager::~UserSettingsManager() = default;

} // namespace Ostrel::App
