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
    // One wait per waiter: a second start does nothing.
    if (d->thread.joinable())
        return;
    waiting = true;
    // A new thread inherits the priority of the one that makes it.
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
    emit Finished(maxAttempts - remaining);
}

} // namespace Ostrel::App
