#include "Core/HardwareInfo_p.h"

#include <QSettings>

namespace Ostrel::App::Platform {

QByteArray readMachineId(QString* source)
{
    *source = QStringLiteral("HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\Cryptography\\MachineGuid");
    // The 64-bit view: a 32-bit build would otherwise read the redirected, empty key.
    const QSettings cryptography(QStringLiteral("HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\Cryptography"),
                                 QSettings::Registry64Format);
    return cryptography.value(QStringLiteral("MachineGuid")).toString().trimmed().toUtf8();
}

} // namespace Ostrel::App::Platform
