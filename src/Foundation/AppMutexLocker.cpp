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

struct AppMutexLocker::Impl
{
    std::string name;
    AppMutexPlatform::Handle handle = 0;
    bool locked = false;
};

AppMutexLocker::AppMutexLocker(const std::string& name) : m_impl(std::make_unique<Impl>())
{
    m_impl->name = name;
}

AppMutexLocker::~AppMutexLocker()
{
    if (!m_impl->locked)
        return;
    AppMutexPlatform::release(m_impl->handle);
    unclaim(m_impl->name);
}

bool AppMutexLocker::TryLockAppMutex()
{
    if (m_impl->locked)
        return true;
    if (!claim(m_impl->name))
        return false;
    if (!AppMutexPlatform::acquire(m_impl->name, m_impl->handle)) {
        unclaim(m_impl->name);
        return false;
    }
    m_impl->locked = true;
    return true;
}

bool AppMutexLocker::IsLocked() const
{
    return m_impl->locked;
}

} // namespace Ostrel::Util
