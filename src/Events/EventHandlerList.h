#pragma once

#include "Events/EventPublisher.h"
#include "Events/SyncExecutePolicy.h"

#include <algorithm>
#include <functional>
#include <mutex>
#include <vector>

namespace Ostrel::Core {

/// An ordered list of observers with copy-then-call notification.
///
/// A notification walks a copy of the list taken under the list's lock, so handlers may register
/// or unregister anyone (themselves included) while being called: a handler removed meanwhile still
/// hears the notification in progress, one added meanwhile first hears the next one. Both mutexes
/// are recursive, so a handler may also notify the same list again; the nested notification runs
/// to its end inside the outer one.
template <class H, class ExecutePolicy = SyncExecutePolicy> class EventHandlerList : public EventPublisher<H>
{
public:
    /// A null handler is ignored; a handler already present is not added twice.
    void RegisterEventHandler(H* handler) override
    {
        if (!handler)
            return;
        std::lock_guard<std::recursive_mutex> lock(m_handlersMutex);
        if (std::find(m_handlers.begin(), m_handlers.end(), handler) == m_handlers.end())
            m_handlers.push_back(handler);
    }

    /// A null or unknown handler is ignored; the others keep their order.
    void UnregisterEventHandler(H* handler) override
    {
        if (!handler)
            return;
        std::lock_guard<std::recursive_mutex> lock(m_handlersMutex);
        const auto it = std::find(m_handlers.begin(), m_handlers.end(), handler);
        if (it != m_handlers.end())
            m_handlers.erase(it);
    }

    /// Calls `method` on every handler in registration order, each call with its own copy of the
    /// arguments. `method` may be a member of any base of H. An exception from a handler leaves
    /// the notification at once: later handlers are not called.
    template <class Method, class... Args> void Notify(Method method, const Args&... args)
    {
        std::vector<H*> snapshot;
        {
            std::lock_guard<std::recursive_mutex> lock(m_handlersMutex);
            snapshot = m_handlers;
        }
        std::lock_guard<std::recursive_mutex> lock(m_policy.executeMutex());
        for (H* handler : snapshot) {
            m_policy.Execute([handler, method, args...]() { std::invoke(method, handler, args...); });
        }
    }

    std::size_t size() const
    {
        std::lock_guard<std::recursive_mutex> lock(m_handlersMutex);
        return m_handlers.size();
    }

private:
    std::vector<H*> m_handlers;
    mutable std::recursive_mutex m_handlersMutex;
    ExecutePolicy m_policy;
};

} // namespace Ostrel::Core
