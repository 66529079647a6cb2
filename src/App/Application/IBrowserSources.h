#pragma once

#include <QString>
#include <QStringList>

#include <map>

namespace Ostrel::App {

/// What the search for a browser's executable consults: the running processes and a registry
/// with Windows' key paths ("HKEY_CURRENT_USER\\SOFTWARE\\Clients\\StartMenuInternet"). Windows
/// reads its registry; other systems answer the same paths from their own sources.
class IBrowserSources
{
public:
    virtual ~IBrowserSources() = default;
    /// Running executables: lower-case file name to full path; names are never empty.
    virtual std::map<QString, QString> processMap() const = 0;
    /// The names of the values of a key, as QSettings::allKeys.
    virtual QStringList valueNames(const QString& key) const = 0;
    /// The subkeys of a key, as QSettings::childGroups.
    virtual QStringList subkeys(const QString& key) const = 0;
    /// The default value of a key; empty when there is none.
    virtual QString defaultValue(const QString& key) const = 0;
};

} // namespace Ostrel::App
