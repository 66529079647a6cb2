#pragma once

#include "Context/TApplicationContextObservers.h"
#include "Events/EventHandlerList.h"

#include <boost/any.hpp>

#include <list>
#include <memory>
#include <type_traits>

namespace Ostrel::App {

/// A typed registry of service objects. The component types are fixed by the template arguments;
/// the storage is a run-time list, so a component may arrive late or be replaced, and every
/// replacement is told to the observers, new value first.
///
/// The list belongs to the main thread and has no lock; only the observer list is guarded.
template <class... Components>
class IApplicationContext;

template <class... Components>
class IApplicationContext<void, Components...>
    : public Core::EventPublisher<TApplicationContextObservers<void, Components...>>
{
public:
    using Observer = TApplicationContextObservers<void, Components...>;

    IApplicationContext() = default;
    IApplicationContext(const IApplicationContext&) = delete;
    IApplicationContext& operator=(const IApplicationContext&) = delete;
    ~IApplicationContext() override = default;

    /// The stored component, or null when it was never set. Never creates a node.
    template <class T>
    std::shared_ptr<T> get() const
    {
        static_assert(isComponent<T>(), "not a component of this context");
        for (const boost::any& node : m_components) {
            if (const auto* value = boost::any_cast<std::shared_ptr<T>>(&node))
                return *value;
        }
        return {};
    }

    /// Replaces the component and tells the observers (new, old). Setting the pointer already held
    /// (null over an absent component included) does nothing; any other value, null too, is
    /// stored at the end of the list.
    template <class T>
    void set(const std::shared_ptr<T>& value)
    {
        static_assert(isComponent<T>(), "not a component of this context");
        const std::shared_ptr<T> old = get<T>();
        if (old.get() == value.get())
            return;
        m_components.remove_if([](const boost::any& node) { return node.type() == typeid(std::shared_ptr<T>); });
        m_components.emplace_back(value);
        m_observers.Notify(&TApplicationContextObserver<T>::onComponentChanged, value, old);
    }

    void RegisterEventHandler(Observer* observer) override { m_observers.RegisterEventHandler(observer); }
    void UnregisterEventHandler(Observer* observer) override { m_observers.UnregisterEventHandler(observer); }

    /// How many components are stored, null ones included.
    std::size_t componentCount() const { return m_components.size(); }

    /// Fetches and drops every component, in the order of the template arguments.
    void fetchAllComponents() const
    {
        get<void>();
        (get<Components>(), ...);
    }

private:
    template <class T>
    static constexpr bool isComponent()
    {
        return std::is_void_v<T> || (std::is_same_v<T, Components> || ...);
    }

    // Destroyed in reverse order: the components first, then the observers.
    Core::EventHandlerList<Observer> m_observers;
    std::list<boost::any> m_components;
};

} // namespace Ostrel::App
