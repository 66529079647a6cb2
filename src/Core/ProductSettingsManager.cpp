#include "Core/ProductSettingsManager.h"

#include "Core/SettingsLocations.h"

namespace Ostrel::App {

ProductSettingsManager::ProductSettingsManager()
    : SettingsStore(SettingsLocations::filePath(SettingsLocations::Scope::Product))
{
}

ProductSettingsManager::ProductSettingsManager(const QString& filePath) : SettingsStore(filePath) {}

ProductSettingsManager::~ProductSettingsManager() = default;

} // namespace Ostrel::App
