#pragma once

namespace Ostrel::Core {

/// Hears that a ComponentSetter got a new value; it asks the setter for the value itself.
class ComponentSetterObserver
{
public:
    virtual void onSet() = 0;
    virtual ~ComponentSetterObserver() = default;
};

} // namespace Ostrel::Core
