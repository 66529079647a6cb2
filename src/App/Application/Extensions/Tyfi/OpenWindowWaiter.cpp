#include "App/Application/Extensions/Tyfi/OpenWindowWaiter.h"

#include "App/Application/Extensions/Tyfi/OwnWindowCheck_p.h"

#include <atomic>
#include <condition_variable>
#include <mutex>
#include <thread>

namespace Ostrel::App {

namespace {
// Shared by every waiter; written by the GUI thread and the helper thread.
std::atomic<bool> waiting{false};
} // namespace

class OpenWindowWaiter::Impl
{
public:
    explicit Impl(const WindowWaitTimings& waitTimings) : timings(waitTimings) {}

    // Returns early when the waiter is being destroyed, so that its destructor never sits out a
    // whole pause.
    void pause()
    {
        std::unique_lock<std::mutex> lock(mutex);
        stopped.wait_for(lock, timings.pause, [this]() { return stopping; });
    }

    void stop()
    {
        {
            std::lock_guard<std::mutex> lock(mutex);
            stopping = true;
        }
        stopped.notify_all();
    }

    const WindowWaitTimings timings;
    std::mutex mutex;
    std::condition_variable stopped;
    bool stopping = false;
    // Set by Start, cleared by the helper thread when its wait is over.
    std::atomic<bool> running{false};
    std::thread thread;
};

OpenWindowWaiter::OpenWindowWaiter() : OpenWindowWaiter(WindowWaitTimings()) {}

OpenWindowWaiter::OpenWindowWaiter(const WindowWaitTimings& timings) : d(std::make_unique<Impl>(timings))
{
    PrepareOwnWindowCheck();
}

OpenWindowWaiter::~OpenWindowWaiter()
{
    waiting = false;
    d->stop();
    if (d->thread.joinable())
        d->thread.join();
}

void OpenWindowWaiter::Start()
{
    if (d->running)
        return;
    // The last wait has emitted its report; its thread is ending, if it has not ended already.
    if (d->thread.joinable())
        d->thread.join();
    d->running = true;
    waiting = true;
    d->thread = std::thread([this]() { waitLoop(); });
}

void OpenWindowWaiter::waitLoop()
{
    const int maxAttempts = d->timings.maxAttempts;
    int remaining = maxAttempts;
    while (waiting && remaining >= 1) {
        CheckForOwnWindow(waiting);
        d->pause();
        --remaining;
    }
    // Cleared before the report, so that whoever hears it may start the next wait.
    d->running = false;
    emit Finished(maxAttempts - remaining);
}

} // namespace Ostrel::App
