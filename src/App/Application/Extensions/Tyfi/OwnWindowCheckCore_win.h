#pragma once

#include <windows.h>

namespace Ostrel::Win32 {

/// Whether process `processId` has a visible top-level window.
bool HasVisibleTopLevelWindow(DWORD processId);

} // namespace Ostrel::Win32
