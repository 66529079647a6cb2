#pragma once

#include "App/Application/IBrowserSources.h"
#include "App/Application/ostrel_app_export.h"

namespace Ostrel::App {

/// The system's own sources for the browser search.
///
/// Windows: the registry through QSettings in native format, and the process list.
///
/// Linux has no registry; it answers the keys that the search reads:
///   - MuiCache: no values (Linux keeps no record of the programs a user ran).
///   - HKEY_CURRENT_USER\SOFTWARE\Clients\StartMenuInternet: the user's desktop entries that
///     handle "x-scheme-handler/http" ($XDG_DATA_HOME/applications), led by the default web
///     browser ($BROWSER, then "x-scheme-handler/http" in mimeapps.list);
///   - HKEY_LOCAL_MACHINE\...: the same from the system's folders ($XDG_DATA_DIRS/applications).
///   Each entry's command is its program alone, made absolute through PATH.
///   - The process map is keyed by file name with ".exe" behind it.
/// So on Linux a browser's name is its program's file name with ".exe", as the installer of the
/// Windows build writes it: "firefox.exe" is the program "firefox". The registered browsers
/// compare names without regard to case.
class OSTREL_APP_EXPORT SystemBrowserSources : public IBrowserSources
{
public:
    std::map<QString, QString> processMap() const override;
    QStringList valueNames(const QString& key) const override;
    QStringList subkeys(const QString& key) const override;
    QString defaultValue(const QString& key) const override;
};

} // namespace Ostrel::App
