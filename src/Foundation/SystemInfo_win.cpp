#include "Foundation/SystemInfo.h"

#include "Foundation/SystemFactsCore_win.h"

namespace Ostrel::Core {

int OSBits()
{
    return Win32::OsBits();
}

} // namespace Ostrel::Core
