#pragma once

#include "Interfaces/LifetimeObserver.h"

#include <functional>
#include <utility>

namespace Ostrel::App {

/// A one-shot start callback, registered as an observer like any other so that it runs in the
/// order of registration among them.
class OnStartHandler : public LifetimeObserver
{
public:
    explicit OnStartHandler(std::function<void()> callback) : m_callback(std::move(callback)) {}

    void onStart() override { m_callback(); }

private:
    std::function<void()> m_callback;
};

} // namespace Ostrel::App
