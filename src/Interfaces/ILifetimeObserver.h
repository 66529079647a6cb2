#pragma once

#include <functional>

namespace Ostrel::App {

/// Hears the moments of the process: the start, the request to quit (which it may veto by calling
/// `cancel` within the call), and the quit.
class ILifetimeObserver
{
public:
    virtual ~ILifetimeObserver() = default;
    virtual void onStart() = 0;
    virtual void onQuitRequested(const std::function<void()>& cancel) = 0;
    virtual void onQuit() = 0;
};

} // namespace Ostrel::App
