#pragma once

#include "Events/EventHandlerList.h"

namespace Ostrel::Core {

/// Implements a publisher interface P by forwarding to an EventHandlerList it holds; the owner
/// notifies through handlers().
template <class P> class EventHandlerRegistrator : public virtual P
{
public:
    using Handler = typename P::Handler;

    void RegisterEventHandler(Handler* handler) override { m_handlers.RegisterEventHandler(handler); }
    void UnregisterEventHandler(Handler* handler) override { m_handlers.UnregisterEventHandler(handler); }

protected:
    EventHandlerList<Handler, SyncExecutePolicy>& handlers() { return m_handlers; }

private:
    EventHandlerList<Handler, SyncExecutePolicy> m_handlers;
};

} // namespace Ostrel::Core
