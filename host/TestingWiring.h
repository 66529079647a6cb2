#pragma once

#include <QString>

#include <memory>

namespace Ostrel::App {
class Application;
class ILifetimeManager;
} // namespace Ostrel::App

/// The shell's built-in test options (--test-help lists them). Made right after the application
/// object, before any component and any URL; connected to the components once they exist.
class TestingWiring
{
public:
    /// Null, with the reason on standard error, when the test options contradict each other.
    static std::unique_ptr<TestingWiring>
    create(const std::shared_ptr<Ostrel::App::ILifetimeManager>& lifetime);
    ~TestingWiring();
    TestingWiring(const TestingWiring&) = delete;
    TestingWiring& operator=(const TestingWiring&) = delete;

    /// Puts the offline checker in place if asked for, and adds the URL and nag tests.
    void connect(Ostrel::App::Application& application);
    /// Where the test options of this run wrote their files, a line each; empty without any.
    QString outputSummary(Ostrel::App::Application& application) const;

private:
    TestingWiring();
    class Impl;
    std::unique_ptr<Impl> d;
};
