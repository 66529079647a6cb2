#include "Core/HardwareInfo_p.h"

#include "Foundation/RegistryCore_win.h"

namespace Ostrel::App::Platform {

QByteArray readMachineId(QString* source)
{
    *source = QStringLiteral("HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\Cryptography\\MachineGuid");
    const Win32::RegistryText guid =
        Win32::ReadRegistryText(HKEY_LOCAL_MACHINE, L"SOFTWARE\\Microsoft\\Cryptography", L"MachineGuid");
    if (guid.error != ERROR_SUCCESS)
        *source += QStringLiteral(" (error %1)").arg(guid.error);
    return QString::fromStdWString(guid.text).trimmed().toUtf8();
}

} // namespace Ostrel::App::Platform
