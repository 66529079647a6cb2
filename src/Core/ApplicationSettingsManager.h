#pragma once

#include "Core/SettingsStore.h"
#include "Core/ostrel_core_export.h"
#include "Interfaces/IApplicationSettingsManager.h"

namespace Ostrel::App {

/// The application-wide settings shared by the product's modules.
/// Lives in its own file, by default SettingsLocations::filePath(Scope::Application).
class OSTREL_CORE_EXPORT ApplicationSettingsManager : public IApplicationSettingsManager, public SettingsStore
{
public:
    /// Opens the scope's default file.
    ApplicationSettingsManager();
    /// Opens the INI file at `filePath` instead (tests, a product with its own layout).
    explicit ApplicationSettingsManager(const QString& filePath);
    ~ApplicationSettingsManager() override;
};

} // namespace Ostrel::App
