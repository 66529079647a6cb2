#include "Foundation/SystemInfo.h"

#include <sys/utsname.h>

#include <cstring>

namespace Ostrel::Core {

int OSBits()
{
    struct utsname name;
    if (::uname(&name) != 0)
        return AppBits();
    // Kernel machine names of 64-bit architectures mostly say so ("x86_64", "aarch64",
    // "ppc64le", "riscv64"); these do not.
    static const char* const unmarked64[] = {"s390x", "alpha"};
    if (std::strstr(name.machine, "64"))
        return 64;
    for (const char* machine : unmarked64) {
        if (std::strcmp(name.machine, machine) == 0)
            return 64;
    }
    return 32;
}

} // namespace Ostrel::Core
