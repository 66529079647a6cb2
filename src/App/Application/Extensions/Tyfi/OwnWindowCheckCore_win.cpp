#include "App/Application/Extensions/Tyfi/OwnWindowCheckCore_win.h"

namespace Ostrel::Win32 {

namespace {
struct Search
{
    DWORD processId;
    const std::atomic<bool>* keepLooking;
    bool found;
};

BOOL CALLBACK checkWindow(HWND window, LPARAM context)
{
    auto& search = *reinterpret_cast<Search*>(context);
    if (search.keepLooking && !*search.keepLooking)
        return FALSE;
    if (!::IsWindowVisible(window))
        return TRUE;
    DWORD owner = 0;
    ::GetWindowThreadProcessId(window, &owner);
    search.found = owner == search.processId;
    return search.found ? FALSE : TRUE;
}
} // namespace

bool HasVisibleTopLevelWindow(DWORD processId, const std::atomic<bool>* keepLooking)
{
    Search search = {processId, keepLooking, false};
    ::EnumWindows(&checkWindow, reinterpret_cast<LPARAM>(&search));
    return search.found;
}

} // namespace Ostrel::Win32
