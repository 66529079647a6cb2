#include "QtUtil/HardwareInfoReport_p.h"

#include "Foundation/SystemFactsCore_win.h"

namespace Ostrel::Util::Platform {

QString cpuModelName()
{
    return QString::fromStdWString(Win32::CpuModelName());
}

std::uint64_t totalPhysicalMemory()
{
    return Win32::TotalPhysicalMemory();
}

} // namespace Ostrel::Util::Platform
