#include "QtUtil/HardwareInfoReport_p.h"

#include <QSettings>

#include <windows.h>

namespace Ostrel::Util::Platform {

QString cpuModelName()
{
    const QSettings cpu(
        QStringLiteral("HKEY_LOCAL_MACHINE\\HARDWARE\\DESCRIPTION\\System\\CentralProcessor\\0"),
        QSettings::NativeFormat);
    return cpu.value(QStringLiteral("ProcessorNameString")).toString().trimmed();
}

std::uint64_t totalPhysicalMemory()
{
    MEMORYSTATUSEX status{};
    status.dwLength = sizeof(status);
    if (!GlobalMemoryStatusEx(&status))
        return 0;
    return status.ullTotalPhys;
}

} // namespace Ostrel::Util::Platform
