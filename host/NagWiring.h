#pragma once

#include <QString>

#include <memory>

class QCommandLineParser;
class QMenuBar;

namespace Ostrel::ExternalStimulus {
class IGateway;
}

namespace Ostrel::App {
class Application;
class CustomizationManager;
class LocalSocketProtocol;
class ProductSettingsManager;
} // namespace Ostrel::App

/// The host's nags: the nag manager with a dialog (or notification) strategy, requests from other
/// instances over the local socket, and the "app_start" nag shortly after the start. Once the
/// application has its links manager, the nags' actions (links through the URL handler, purchase
/// pages, e-mail) and the tracking of every step join in front of the strategy.
class NagWiring
{
public:
    /// Adds the host's nag options to `parser`.
    static void addOptions(QCommandLineParser& parser);
    /// Decides whether this is the primary instance, which listens for requests. In a second
    /// instance with "--open-nag", hands the address to the primary. True when it took it: this
    /// process has nothing more to do.
    static bool handOffToRunningInstance(const QCommandLineParser& parser,
                                         Ostrel::App::LocalSocketProtocol& protocol, const QString& product);

    NagWiring(Ostrel::App::Application& application, const QCommandLineParser& parser,
              const std::shared_ptr<Ostrel::App::LocalSocketProtocol>& protocol,
              const std::shared_ptr<Ostrel::App::ProductSettingsManager>& settings);
    ~NagWiring();
    NagWiring(const NagWiring&) = delete;
    NagWiring& operator=(const NagWiring&) = delete;

    /// Call once the main window is up: the requested nag, or the welcome ("app_start") on the
    /// first start of a version, once no question of @p questions (may be null) is open.
    void showAfterStart(const std::shared_ptr<Ostrel::ExternalStimulus::IGateway>& questions);
    /// A "Tools" menu with the nag tester.
    void addMenu(QMenuBar& menuBar);

private:
    bool welcomeDue() const;

    class Impl;
    std::unique_ptr<Impl> d;
};
