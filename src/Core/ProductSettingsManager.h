#pragma once

#include "Core/SettingsStore.h"
#include "Core/ostrel_core_export.h"
#include "Interfaces/IProductSettingsManager.h"

namespace Ostrel::App {

/// The settings of this product on this machine: identity, first start, partner, last launched version.
/// Lives in its own file, by default SettingsLocations::filePath(Scope::Product).
class OSTREL_CORE_EXPORT ProductSettingsManager : public IProductSettingsManager, public SettingsStore
{
public:
    /// Opens the scope's default file.
    ProductSettingsManager();
    /// Opens the INI file at `filePath` instead (tests, a product with its own layout).
    explicit ProductSettingsManager(const QString& filePath);
    ~ProductSettingsManager() override;
};

} // namespace Ostrel::App
