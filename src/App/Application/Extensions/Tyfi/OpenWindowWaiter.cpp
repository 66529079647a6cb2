#include "App/Application/Extensions/Tyfi/OpenWindowWaiter.h"

#include "App/Application/Extensions/Tyfi/OwnWindowCheck_p.h"

#include <atomic>

namespace Ostrel::App {

namespace {
constexpr int kMaxAttempts = 40;
constexpr unsigned long kPauseMs = 300;

// Shared by every waiter; written by the GUI thread and the helper thread.
std::atomic<bool> waiting{false};
} // namespace

OpenWindowWaiter::OpenWindowWaiter()
{
    PrepareOwnWindowCheck();
    moveToThread(&thread);
    connect(&thread, &QThread::started, this, &OpenWindowWaiter::waitLoop);
    // Direct: quit is thread-safe, and the helper thread must end even while the GUI thread is busy.
    connect(this, &OpenWindowWaiter::Finished, &thread, &QThread::quit, Qt::DirectConnection);
}

OpenWindowWaiter::~OpenWindowWaiter()
{
    waiting = false;
    thread.quit();
    thread.wait();
}

void OpenWindowWaiter::Start()
{
    waiting = true;
    thread.start(QThread::InheritPriority);
}

void OpenWindowWaiter::waitLoop()
{
    int remaining = kMaxAttempts;
    while (waiting && remaining >= 1) {
        CheckForOwnWindow(waiting);
        QThread::msleep(kPauseMs);
        --remaining;
    }
    emit Finished(kMaxAttempts - remaining);
}

} // namespace Ostrel::App
