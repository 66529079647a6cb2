#include "App/Application/SystemBrowserSources.h"

#include "App/Application/StartupEnvironment.h"

#include <QSettings>

namespace Ostrel::App {

std::map<QString, QString> SystemBrowserSources::processMap() const
{
    return GetCurrentProcessMap([](const QString& name) { return !name.isEmpty(); });
}

QStringList SystemBrowserSources::valueNames(const QString& key) const
{
    return QSettings(key, QSettings::NativeFormat).allKeys();
}

QStringList SystemBrowserSources::subkeys(const QString& key) const
{
    return QSettings(key, QSettings::NativeFormat).childGroups();
}

QString SystemBrowserSources::defaultValue(const QString& key) const
{
    return QSettings(key, QSettings::NativeFormat).value(QStringLiteral("."), QString()).toString();
}

} // namespace Ostrel::App
