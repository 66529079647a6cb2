#include "Core/ApplicationSettingsManager.h"

#include "Core/SettingsLocations.h"

namespace Ostrel::App {

ApplicationSettingsManager::ApplicationSettingsManager()
    : SettingsStore(SettingsLocations::filePath(SettingsLocations::Scope::Application))
{
}

ApplicationSettingsManager::ApplicationSettingsManager(const QString& filePath) : SettingsStore(filePath) {}

ApplicationSettingsManager::~ApplicationSettingsManager() = default;

} // namespace Ostrel::App
