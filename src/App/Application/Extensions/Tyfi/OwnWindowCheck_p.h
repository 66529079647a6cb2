#pragma once

#include <atomic>

namespace Ostrel::App {

/// On the GUI thread, before a check may run: whatever the platform's check needs to be ready.
void PrepareOwnWindowCheck();

/// From any thread: looks for a visible top-level window of this process, and clears `waiting`
/// when there is one. Does nothing once `waiting` is clear.
void CheckForOwnWindow(std::atomic<bool>& waiting);

} // namespace Ostrel::App
