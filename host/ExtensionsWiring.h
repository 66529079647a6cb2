#pragma once

#include <memory>

namespace Ostrel::ExternalStimulus {
class IGateway;
}

namespace Ostrel::App {
class Application;
class ILifetimeManager;
} // namespace Ostrel::App

/// The host's start-up extensions: each one whose components are there is built, runs once after
/// the start through the lifetime manager, and lives as long as this object (the whole run), so
/// that a pending update request, a waiting thank-you page or a running send can finish.
class ExtensionsWiring
{
public:
    /// Call after the components and the links manager are set, before the start.
    ExtensionsWiring(Ostrel::App::Application& application, Ostrel::App::ILifetimeManager& lifetime);
    ~ExtensionsWiring();
    ExtensionsWiring(const ExtensionsWiring&) = delete;
    ExtensionsWiring& operator=(const ExtensionsWiring&) = delete;

    /// The road of everything that asks the user at the start: one at a time, never over an open
    /// modal window (the usage statistics question).
    std::shared_ptr<Ostrel::ExternalStimulus::IGateway> questions() const;

private:
    class Impl;
    std::unique_ptr<Impl> d;
};
