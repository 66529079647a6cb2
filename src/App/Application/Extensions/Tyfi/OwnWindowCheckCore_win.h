#pragma once

#include <atomic>

#include <windows.h>

namespace Ostrel::Win32 {

/// Whether process `processId` has a visible top-level window. The search stops, answering false,
/// as soon as `keepLooking` is cleared (from another thread).
bool HasVisibleTopLevelWindow(DWORD processId, const std::atomic<bool>* keepLooking = nullptr);

} // namespace Ostrel::Win32
