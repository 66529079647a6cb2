#include "App/Application/Extensions/Tyfi/OwnWindowCheck_p.h"

#include "App/Application/Extensions/Tyfi/OwnWindowCheckCore_win.h"

namespace Ostrel::App {

void PrepareOwnWindowCheck() {}

void CheckForOwnWindow(std::atomic<bool>& waiting)
{
    if (waiting && Win32::HasVisibleTopLevelWindow(::GetCurrentProcessId(), &waiting))
        waiting = false;
}

} // namespace Ostrel::App
