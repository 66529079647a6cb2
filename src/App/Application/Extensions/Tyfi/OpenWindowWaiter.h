#pragma once

#include "App/Application/ostrel_app_export.h"

#include <QObject>

#include <chrono>
#include <memory>

namespace Ostrel::App {

/// How long a window waiter tries: `maxAttempts` checks, each followed by `pause`.
struct WindowWaitTimings
{
    int maxAttempts = 40;
    std::chrono::milliseconds pause{300};
};

/// Waits on a helper thread until this process shows a visible top-level window: up to 40
/// attempts, 300 ms apart unless told otherwise (the pause is taken after a successful attempt
/// too). Finished carries the number of attempts made and is emitted on the helper thread.
///
/// The helper thread is a plain std::thread, joined by the destructor: unlike QThread's own
/// wait, a join is a synchronisation that race checkers see. It does not take its creator's
/// priority (on Windows a new thread starts at normal priority): a loop that mostly sleeps needs
/// none.
///
/// All waiters share one flag, so only one should wait at a time.
class OSTREL_APP_EXPORT OpenWindowWaiter : public QObject
{
    Q_OBJECT

public:
    /// On the GUI thread.
    OpenWindowWaiter();
    explicit OpenWindowWaiter(const WindowWaitTimings& timings);
    /// Stops the wait, cutting a pause short, and returns once the helper thread has ended.
    ~OpenWindowWaiter() override;

    /// Begins a wait, on the GUI thread. A waiter that is waiting ignores it; one whose wait has
    /// finished waits again.
    void Start();

signals:
    void Finished(int attemptCount);

private:
    void waitLoop();

    class Impl;
    std::unique_ptr<Impl> d;
};

} // namespace Ostrel::App
