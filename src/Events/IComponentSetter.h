#pragma once

#include "Events/ComponentSetterObserver.h"
#include "Events/EventHandlerRegistrator.h"

namespace Ostrel::Core {

/// An observable single-value slot, seen without its value type. Subscribing and unsubscribing
/// are the publisher's two operations.
class IComponentSetter : public virtual EventHandlerRegistrator<EventPublisher<ComponentSetterObserver>>
{
public:
    virtual bool IsSet() const = 0;
};

} // namespace Ostrel::Core
