#pragma once

#include "App/Application/Application.h"
#include "App/Application/LifetimeManager.h"

#include "TestEnvironment.h"

#include <memory>

namespace Ostrel::Test {

/// A lifetime whose quit leaves the process alone, so that one test process may start and stop
/// the shell as often as its test functions need.
class NoQuitLifetime : public App::LifetimeManager
{
protected:
    void quitImpl() override {}
};

/// The running shell application of a test that `execInApplication` started.
inline App::Application& app()
{
    return *static_cast<App::Application*>(QCoreApplication::instance());
}

/// A test main for tests of the shell application itself: the application holds a NoQuitLifetime
/// that the test object is given too.
template <class TestObject> int execInApplication(int argc, char** argv)
{
    initTestEnvironment(argv[0]);
    auto lifetime = std::make_shared<NoQuitLifetime>();
    App::Application application(argc, argv, lifetime, App::Application::DISABLE_APP_MUTEX);
    TestObject test(lifetime);
    return exec(&test, argc, argv);
}

} // namespace Ostrel::Test
