#include "Core/MailSettingsManager.h"

#include "Core/SettingsLocations.h"

namespace Ostrel::App {

MailSettingsManager::MailSettingsManager()
    : SettingsStore(SettingsLocations::filePath(SettingsLocations::Scope::Mail))
{
}

MailSettingsManager::MailSettingsManager(const QString& filePath) : SettingsStore(filePath) {}

MailSettingsManager::~MailSettingsManager() = default;

} // namespace Ostrel::App
