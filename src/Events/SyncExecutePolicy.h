#pragma once

#include <mutex>
#include <utility>

namespace Ostrel::Core {

/// Runs each notification call at once, in the calling thread. The policy owns the mutex that is
/// held for a whole notification, so that two threads notifying one list run one after the other;
/// it is recursive so that a handler may notify the same list again.
class SyncExecutePolicy
{
public:
    std::recursive_mutex& executeMutex() { return m_executeMutex; }

    template <class Call> void Execute(Call&& call) { std::forward<Call>(call)(); }

private:
    std::recursive_mutex m_executeMutex;
};

} // namespace Ostrel::Core
