#include "Foundation/AppMutexLocker.h"

#include "Foundation/AppMutexLocker_p.h"

#include <mutex>
#include <set>

namespace Ostrel::Util {

namespace {

// The names this process holds. The OS primitives do not all exclude two holders within one
// process (a Windows mutex is re-entrant for the thread that owns it), so the process keeps
// its own account first. Never destroyed: a locker living in a static object may be released
// after every function-local static is gone.
struct HeldNames
{
    std::mutex mutex;
    std::set<std::string> names;
};

HeldNames& heldNames()
{
    static HeldNames* held = new HeldNames;
    return *held;
}

bool claim(const std::string& name)
{
    HeldNames& held = heldNames();
    std::lock_guard<std::mutex> lock(held.mutex);
    return held.names.insert(name).second;
}

void unclaim(const std::string& name)
{
    HeldNames& held = heldNames();
    std::lock_guard<std::mutex> lock(held.mutex);
    held.names.erase(name);
}

} // namespace

class AppMutexLocker::Impl
{
public:
    std::string name;
    AppMutexPlatform::Handle handle = 0;
    bool locked = false;
};

AppMutexLocker::AppMutexLocker(const std::string& name) : d(std::make_unique<Impl>())
{
    d->name = name;
}

AppMutexLocker::~AppMutexLocker()
{
    if (!d->locked)
        return;
    AppMutexPlatform::release(d->handle);
    unclaim(d->name);
}

bool AppMutexLocker::TryLockAppMutex()
{
    if (d->locked)
        return true;
    if (!claim(d->name))
        return false;
    if (!AppMutexPlatform::acquire(d->name, d->handle)) {
        unclaim(d->name);
        return false;
    }
    d->locked = true;
    return true;
}

bool AppMutexLocker::IsLocked() const
{
    return d->locked;
}

} // namespace Ostrel::Util
