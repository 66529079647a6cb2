#pragma once

#include <stdexcept>
#include <type_traits>
#include <utility>

namespace Ostrel::Core {

/// A smart pointer that is known not to be null. Constructors that need a service take their
/// arguments as NotNull, so that the first null argument is the one reported.
template <class P> class NotNull
{
public:
    NotNull(P pointer) // NOLINT(google-explicit-constructor): converting is the point
        : m_pointer(std::move(pointer))
    {
        if (!m_pointer)
            throw std::logic_error("NotNull can not initialized by null");
    }

    /// From a pointer to a derived type, so that a concrete service passes where its interface is asked.
    template <class Q,
              class = std::enable_if_t<std::is_convertible_v<Q, P> && !std::is_same_v<std::decay_t<Q>, P>>>
    NotNull(Q&& pointer) // NOLINT(google-explicit-constructor)
        : NotNull(P(std::forward<Q>(pointer)))
    {
    }

    operator const P&() const { return m_pointer; } // NOLINT(google-explicit-constructor)
    const P& get() const { return m_pointer; }
    auto operator->() const { return m_pointer.operator->(); }
    auto& operator*() const { return *m_pointer; }

private:
    P m_pointer;
};

} // namespace Ostrel::Core
