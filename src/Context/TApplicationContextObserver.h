#pragma once

#include <memory>

namespace Ostrel::App {

/// Hears that the component of type T was replaced; the context already holds the new value.
template <class T> class TApplicationContextObserver
{
public:
    virtual ~TApplicationContextObserver() = default;
    virtual void onComponentChanged(const std::shared_ptr<T>& newValue,
                                    const std::shared_ptr<T>& oldValue) = 0;
};

} // namespace Ostrel::App
