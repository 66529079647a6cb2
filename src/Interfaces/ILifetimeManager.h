#pragma once

#include "Events/EventPublisher.h"
#include "Interfaces/ILifetimeObserver.h"

#include <functional>
#include <string>

namespace Ostrel::App {

/// How a restart treats the user.
enum WorkingMode
{
    /// Ask the user first.
    Interactive = 0,
    /// Restart without asking.
    Silent = 1,
};

/// Marks the moments of the process that other parts hook: the start, the request to quit, the
/// quit; and restarts the program.
class ILifetimeManager : public virtual Core::EventPublisher<ILifetimeObserver>
{
public:
    /// Fires the start, once.
    virtual void start() = 0;
    virtual bool isStarted() const = 0;
    /// True when the quit went ahead and the new process was asked for.
    virtual bool tryToRestart(WorkingMode mode, const std::string& iconPath, std::string arguments) = 0;
    /// True when no observer vetoed.
    virtual bool tryToQuit() = 0;
    /// A quit went ahead.
    virtual bool isQuitting() const = 0;
    /// A one-shot hook for the start. One added after the start never runs.
    virtual void addOnStartCallback(const std::function<void()>& callback) = 0;
};

} // namespace Ostrel::App
