#include "App/Application/Extensions/Tyfi/OwnWindowCheck_p.h"

#include <windows.h>

namespace Ostrel::App {

namespace {
BOOL CALLBACK checkWindow(HWND window, LPARAM context)
{
    auto& waiting = *reinterpret_cast<std::atomic<bool>*>(context);
    if (!waiting)
        return FALSE;
    if (!IsWindowVisible(window))
        return TRUE;
    DWORD processId = 0;
    GetWindowThreadProcessId(window, &processId);
    if (processId == GetCurrentProcessId()) {
        waiting = false;
        return FALSE;
    }
    return TRUE;
}
} // namespace

void PrepareOwnWindowCheck() {}

void CheckForOwnWindow(std::atomic<bool>& waiting)
{
    EnumWindows(&checkWindow, reinterpret_cast<LPARAM>(&waiting));
}

} // namespace Ostrel::App
