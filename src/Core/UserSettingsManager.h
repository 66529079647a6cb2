#pragma once

#include "Core/SettingsStore.h"
#include "Core/ostrel_core_export.h"
#include "Interfaces/IUserSettingsManager.h"

namespace Ostrel::App {

/// The user's settings: web identity and preferences.
/// Lives in its own file, by default SettingsLocations::filePath(Scope::User).
class OSTREL_CORE_EXPORT UserSettingsManager : public IUserSettingsManager, public SettingsStore
{
public:
    /// Opens the scope's default file.
    UserSettingsManager();
    /// Opens the INI file at `filePath` instead (tests, a product with its own layout).
    explicit UserSettingsManager(const QString& filePath);
    ~UserSettingsManager() override;
};

} // namespace Ostrel::App
