#include "Foundation/SystemInfo.h"

#include <windows.h>

namespace Ostrel::Core {

int OSBits()
{
    if (AppBits() == 64)
        return 64;
    BOOL wow64 = FALSE;
    if (!::IsWow64Process(::GetCurrentProcess(), &wow64))
        return AppBits();
    return wow64 ? 64 : 32;
}

} // namespace Ostrel::Core
