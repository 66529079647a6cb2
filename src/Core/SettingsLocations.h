#pragma once

#include "Core/ostrel_core_export.h"

#include <QString>

namespace Ostrel::App {

/// Where each settings scope lives by default:
///   <GenericConfigLocation>/<organization>/<application>/<scope>.ini
/// with the organization and application names of QCoreApplication (set by the host before any
/// settings are opened) and the scopes "application", "product", "user", "installer", "mail".
class OSTREL_CORE_EXPORT SettingsLocations
{
public:
    enum class Scope
    {
        Application,
        Product,
        User,
        Installer,
        Mail,
    };

    SettingsLocations() = delete;

    /// The scope's file name without folder, "product.ini".
    static QString fileName(Scope scope);
    /// The full default path of the scope's file.
    static QString filePath(Scope scope);
};

} // namespace Ostrel::App
