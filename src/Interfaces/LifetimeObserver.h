#pragma once

#include "Interfaces/ILifetimeObserver.h"

namespace Ostrel::App {

/// An observer that hears nothing until a subclass overrides what it cares for.
class LifetimeObserver : public virtual ILifetimeObserver
{
public:
    void onStart() override {}
    void onQuitRequested(const std::function<void()>& cancel) override {}
    void onQuit() override {}
};

} // namespace Ostrel::App
