#include "Tracking/ApplicationTrackerFactory.h"

#include <mutex>
#include <utility>

namespace Ostrel::Tracking {

namespace {

struct Slot
{
    std::mutex mutex;
    std::shared_ptr<IApplicationTracker> tracker;
};

Slot& slot()
{
    static Slot instance;
    return instance;
}

} // namespace

std::shared_ptr<IApplicationTracker> ApplicationTrackerFactory::getApplicationTracker()
{
    Slot& s = slot();
    std::lock_guard<std::mutex> lock(s.mutex);
    return s.tracker;
}

void ApplicationTrackerFactory::setApplicationTracker(std::shared_ptr<IApplicationTracker> tracker)
{
    Slot& s = slot();
    std::shared_ptr<IApplicationTracker> previous;
    {
        std::lock_guard<std::mutex> lock(s.mutex);
        previous = std::exchange(s.tracker, std::move(tracker));
    }
    // The previous tracker may flush in its destructor; that happens outside the lock.
}

} // namespace Ostrel::Tracking
