#pragma once

namespace Ostrel::App {

/// Tells whether the machine is online. A component of the application context; the real checker
/// lives outside the shell, and the test harness can put a fake in its place.
class IInternetConnectionChecker
{
public:
    /// An opaque handle of the connection the checker watches; null when there is none.
    using ConnectionHandle = void*;

    virtual bool IsConnected() = 0;
    virtual ConnectionHandle GetConnectionHandle() = 0;
    // Last on purpose: the slot order is part of the binary interface that products built against.
    virtual ~IInternetConnectionChecker() = default;
};

} // namespace Ostrel::App
