#pragma once

namespace Ostrel::Core {

/// Something that observers of type H can subscribe to.
template <class H> class EventPublisher
{
public:
    using Handler = H;

    virtual void RegisterEventHandler(H* handler) = 0;
    virtual void UnregisterEventHandler(H* handler) = 0;
    virtual ~EventPublisher() = default;
};

} // namespace Ostrel::Core
