#pragma once

#include "Context/TApplicationContextObserver.h"

namespace Ostrel::App {

/// The observer of a whole component list: one TApplicationContextObserver base per component,
/// in the order of the list, after the one of the `void` placeholder.
template <class... Components> class TApplicationContextObservers;

template <class T> class TApplicationContextObservers<T> : public TApplicationContextObserver<T>
{
public:
    ~TApplicationContextObservers() override = default;
};

template <class... Components>
class TApplicationContextObservers<void, Components...> : public TApplicationContextObserver<void>,
                                                          public TApplicationContextObservers<Components>...
{
public:
    ~TApplicationContextObservers() override = default;
};

} // namespace Ostrel::App
