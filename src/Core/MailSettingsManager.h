#pragma once

#include "Core/SettingsStore.h"
#include "Core/ostrel_core_export.h"
#include "Interfaces/IMailSettingsManager.h"

namespace Ostrel::App {

/// The e-mail collection: address, name and the consent the user gave.
/// Lives in its own file, by default SettingsLocations::filePath(Scope::Mail).
class OSTREL_CORE_EXPORT MailSettingsManager : public IMailSettingsManager, public SettingsStore
{
public:
    /// Opens the scope's default file.
    MailSettingsManager();
    /// Opens the INI file at `filePath` instead (tests, a product with its own layout).
    explicit MailSettingsManager(const QString& filePath);
    ~MailSettingsManager() override;
};

} // namespace Ostrel::App
