#pragma once

#include "Events/IComponentSetter.h"

#include <memory>
#include <mutex>

namespace Ostrel::Core {

/// A single-value slot that can be observed without the whole application context. It keeps only
/// a weak reference: the slot never keeps its component alive.
template <class T, class P = std::shared_ptr<T>> class ComponentSetter : public IComponentSetter
{
public:
    /// Stores a weak reference to `value` and tells the observers, unless it is the value already held.
    void set(const P& value)
    {
        {
            std::lock_guard<std::mutex> lock(m_mutex);
            if (m_value.lock().get() == value.get())
                return;
            m_value = value;
        }
        handlers().Notify(&ComponentSetterObserver::onSet);
    }

    /// The value, or null when none was set or it has died since.
    P get() const
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        return m_value.lock();
    }

    bool IsSet() const override
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        return m_value.lock() != nullptr;
    }

private:
    mutable std::mutex m_mutex;
    std::weak_ptr<T> m_value;
};

} // namespace Ostrel::Core
