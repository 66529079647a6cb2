#include "Foundation/SystemFactsCore_win.h"

#include "Foundation/RegistryCore_win.h"

#include <windows.h>

namespace Ostrel::Win32 {

int OsBits()
{
    if (sizeof(void*) == 8)
        return 64;
    BOOL wow64 = FALSE;
    if (!::IsWow64Process(::GetCurrentProcess(), &wow64))
        return 32;
    return wow64 ? 64 : 32;
}

std::uint64_t TotalPhysicalMemory()
{
    MEMORYSTATUSEX status{};
    status.dwLength = sizeof(status);
    if (!::GlobalMemoryStatusEx(&status))
        return 0;
    return status.ullTotalPhys;
}

std::wstring CpuModelName()
{
    std::wstring name =
        ReadRegistryText(HKEY_LOCAL_MACHINE, L"HARDWARE\\DESCRIPTION\\System\\CentralProcessor\\0",
                         L"ProcessorNameString")
            .text;
    // Some processors pad their name with spaces on either side.
    const auto first = name.find_first_not_of(L" \t");
    if (first == std::wstring::npos)
        return {};
    return name.substr(first, name.find_last_not_of(L" \t") - first + 1);
}

} // namespace Ostrel::Win32
