#include "Core/SettingsLocations.h"
#include "Foundation/Utf8.h"

#include <glog/logging.h>

#include <QCoreApplication>
#include <QStandardPaths>

namespace Ostrel::App {

QString SettingsLocations::fileName(Scope scope)
{
    switch (scope) {
    case Scope::Application:
        return QStringLiteral("application.ini");
    case Scope::Product:
        return QStringLiteral("product.ini");
    case Scope::User:
        return QStringLiteral("user.ini");
    case Scope::Installer:
        return QStringLiteral("installer.ini");
    case Scope::Mail:
        return QStringLiteral("mail.ini");
    }
    return QStringLiteral("application.ini");
}

QString SettingsLocations::filePath(Scope scope)
{
    // GenericConfigLocation rather than AppConfigLocation: the installer and the restarter find the
    // same files without a QCoreApplication named like ours.
    const QString path = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
                         QLatin1Char('/') + QCoreApplication::organizationName() + QLatin1Char('/') +
                         QCoreApplication::applicationName() + QLatin1Char('/') + fileName(scope);
    // A store made before the product names itself reads and writes another folder for the whole
    // run, and the user's settings seem lost: say so where a product engineer will look.
    if (QCoreApplication::organizationName().isEmpty())
        LOG(WARNING) << "Settings file " << Util::QStringToUtf8(path)
                     << " is outside the product's folder: the organization name is not set yet";
    return path;
}

} // namespace Ostrel::App
