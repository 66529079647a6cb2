#pragma once

#include "App/Application/ostrel_app_export.h"
#include "Interfaces/ILifetimeManager.h"

#include <memory>

namespace Ostrel::App {

/// The process's lifetime: a once-only start with one-shot callbacks, a quit any observer can veto,
/// and a restart that starts the program again while this one leaves its event loop.
///
/// Everything runs on the main thread: the question dialog and QCoreApplication::quit need it.
///
/// A restart when the program's own path is unknown (no application object yet) is refused with
/// an error in the log, before the question and the quit. (A deliberate departure, for safety:
/// there is nothing to start, and the empty command would crash.)
class OSTREL_APP_EXPORT LifetimeManager : public virtual ILifetimeManager
{
public:
    LifetimeManager();
    ~LifetimeManager() override;
    LifetimeManager(const LifetimeManager&) = delete;
    LifetimeManager& operator=(const LifetimeManager&) = delete;

    void RegisterEventHandler(ILifetimeObserver* observer) override;
    void UnregisterEventHandler(ILifetimeObserver* observer) override;

    void start() override;
    bool isStarted() const override;
    bool tryToRestart(WorkingMode mode, const std::string& iconPath, std::string arguments) override;
    bool tryToQuit() override;
    bool isQuitting() const override;
    void addOnStartCallback(const std::function<void()>& callback) override;

protected:
    /// Ends the event loop; a subclass may end it another way.
    virtual void quitImpl();

private:
    class Impl;
    std::unique_ptr<Impl> d;
};

} // namespace Ostrel::App
