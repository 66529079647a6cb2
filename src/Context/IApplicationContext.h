#pragma once

#include "Context/TApplicationContextObservers.h"
#include "Events/EventHandlerList.h"

#include <boost/any.hpp>

#include <algorithm>
#include <array>
#include <cstddef>
#include <list>
#include <memory>
#include <type_traits>

namespace Ostrel::App {

/// A typed registry of service objects. The component types are fixed by the template arguments;
/// the storage is a run-time list, so a component may arrive late or be replaced, and every
/// replacement is told to the observers, new value first.
///
/// The list belongs to the main thread and has no lock; only the observer list is guarded.
template <class... Components> class IApplicationContext;

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
    template <class T> std::shared_ptr<T> get() const
    {
        constexpr std::size_t index = indexOf<T>();
        const boost::any* node = m_index[index];
        return node ? *boost::unsafe_any_cast<std::shared_ptr<T>>(node) : std::shared_ptr<T>();
    }

    /// Replaces the component and tells the observers (new, old). Setting the pointer already held
    /// (null over an absent component included) does nothing; any other value, null too, is
    /// stored at the end of the list.
    template <class T> void set(const std::shared_ptr<T>& value)
    {
        const std::shared_ptr<T> old = get<T>();
        if (old.get() == value.get())
            return;
        constexpr std::size_t index = indexOf<T>();
        const boost::any*& slot = m_index[index];
        // The new node first: if making it fails, the old one and the index are as they were.
        const boost::any* added = &m_components.emplace_back(value);
        if (slot) {
            m_components.erase(std::find_if(m_components.begin(), m_components.end(),
                                            [slot](const boost::any& node) { return &node == slot; }));
        }
        slot = added;
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
    // The position of T among void, Components...; a type that is not a component does not compile.
    template <class T> static constexpr std::size_t indexOf()
    {
        constexpr bool matches[] = {std::is_void_v<T>, std::is_same_v<T, Components>...};
        std::size_t index = 0;
        while (index < sizeof...(Components) + 1 && !matches[index])
            ++index;
        static_assert(std::is_void_v<T> || (std::is_same_v<T, Components> || ...),
                      "not a component of this context");
        return index;
    }

    // Destroyed in reverse order: the components first, then the observers.
    Core::EventHandlerList<Observer> m_observers;
    // The list keeps the order of setting (a replaced component moves to the end); the index
    // holds each type's node, so a fetch costs the same for every component. Nodes of a
    // std::list stay where they are, so the pointers hold until their node is erased.
    std::list<boost::any> m_components;
    std::array<const boost::any*, sizeof...(Components) + 1> m_index{};
};

} // namespace Ostrel::App
