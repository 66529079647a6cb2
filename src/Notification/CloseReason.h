#pragma once

namespace Ostrel::DesktopNotification {

/// Why a notification popup closed.
enum class CloseReason
{
    /// SmoothHide finished: the program (or the content) ended it.
    Hidden,
    /// The user closed the window from outside the content.
    ClosedByUser,
    /// An auto-hiding popup stayed its time.
    TimedOut,
};

} // namespace Ostrel::DesktopNotification
