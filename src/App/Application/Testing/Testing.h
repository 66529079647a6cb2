#pragma once

#include "App/Application/ostrel_app_export.h"
#include "Events/NotNull.h"

#include <QCommandLineOption>
#include <QList>
#include <QStringList>

#include <memory>

namespace Ostrel::App {

class ICustomizationManager;
class ILifetimeManager;
class ILinksManager;
class ILookAndFeelManager;
class ITest;
namespace NagScreen {
class IManager;
}

/// The built-in test harness: command line test options of any shipped build. Nothing happens
/// without a test option on the command line.
///
/// Build it at the very start (the SSL choice acts here, before any URL exists), add the host's own
/// tests, call initialize() once the components exist; every test runs at the lifetime manager's start.
class OSTREL_APP_EXPORT Testing
{
public:
    explicit Testing(const std::shared_ptr<ILifetimeManager>& lifetimeManager);
    ~Testing();
    Testing(const Testing&) = delete;
    Testing& operator=(const Testing&) = delete;

    /// Registers `test` and initializes it at once with the command line. A test added after the
    /// start is initialized only, never run.
    void addTest(const Core::NotNull<std::shared_ptr<ITest>>& test);
    /// Adds the URL test and the nag test.
    void initialize(const std::shared_ptr<ICustomizationManager>& customizationManager,
                    const std::shared_ptr<ILookAndFeelManager>& lookAndFeelManager,
                    const std::shared_ptr<ILinksManager>& linksManager,
                    const std::shared_ptr<NagScreen::IManager>& nagManager);
    /// The options of all tests, in order of registration.
    QList<QCommandLineOption> getCommandLineArguments();
    /// Every name of those options, aliases included: for a host that must let them through its own parser.
    QStringList getCommandLineArgumentsString();

private:
    class Impl;
    std::unique_ptr<Impl> d;
};

} // namespace Ostrel::App
