#pragma once

#include "App/Application/ITopManager.h"
#include "App/Application/ostrel_app_export.h"
#include "Events/ComponentSetter.h"
#include "Interfaces/URLKeys.h"

#include <QApplication>

#include <memory>
#include <string>
#include <vector>

namespace Ostrel::App {

class ISplash;

/// The one QApplication of the process, and the application context of the product's services.
///
/// The host constructs it first with its lifetime manager, sets the components (the customization
/// and product settings managers before the launch type processor), then calls the lifetime
/// manager's start. Every event passes notify(), which logs what the user pressed and reports an
/// exception escaping from event processing before letting it go on.
///
/// Except where letting it go on would itself crash: while a modal box is open or an event loop
/// runs inside another, Qt's frames between here and any handler are not exception-safe, so the
/// process ends right here through std::terminate (one crash record, then SIGABRT), which is
/// where an exception that no handler takes ends anyway. A deliberate departure, for safety: a
/// handler around the event loop does not see an exception thrown inside a modal box.
///
/// The start callbacks it and its splash controller register go with them: a lifetime manager
/// that outlives the application and starts later calls nothing of it. (A deliberate departure,
/// for safety: a callback on a destroyed object would crash.)
///
/// Destruction releases the private part first (and with it the application mutex), then the
/// components in list order, then QApplication.
class OSTREL_APP_EXPORT Application : public QApplication, public ITopManager
{
    Q_OBJECT
public:
    struct DisableAppMutexT
    {
    };
    /// Pass it to construct without taking the application mutex (tests, tools).
    static const DisableAppMutexT DISABLE_APP_MUTEX;

    using LinksManagerSetter = Core::ComponentSetter<ILinksManager, std::shared_ptr<ILinksManager>>;

    /// Takes the application mutex (GetAppMutexName, for the names as they stand now); a second
    /// instance is not refused.
    Application(int& argc, char** argv, const std::shared_ptr<ILifetimeManager>& lifetimeManager);
    Application(int& argc, char** argv, const std::shared_ptr<ILifetimeManager>& lifetimeManager,
                DisableAppMutexT);
    ~Application() override;

    std::shared_ptr<ICustomizationManager> GetCustomizationManager() const;
    std::shared_ptr<ExternalStimulus::IGateway> GetExternalStimulusGateway() const;
    std::shared_ptr<IInstallerSettingsManager> GetInstallerSettingsManager() const;
    std::shared_ptr<ILaunchTypeProcessor> GetLaunchTypeProcessor() const;
    std::shared_ptr<ILookAndFeelManager> GetLookAndFeel() const;
    std::shared_ptr<IMailSettingsManager> GetMailSettingsManager() const;
    std::shared_ptr<NagScreen::IManager> GetNagScreenManager() const;
    std::shared_ptr<IProductSettingsManager> GetProductSettingsManager() const;
    std::shared_ptr<IApplicationSettingsManager> GetSettingsManager() const;

    void SetCustomizationManager(const std::shared_ptr<ICustomizationManager>& manager);
    void SetExternalStimulusGateway(const std::shared_ptr<ExternalStimulus::IGateway>& gateway);
    void SetLaunchTypeProcessor(const std::shared_ptr<ILaunchTypeProcessor>& processor);
    void SetLinksManager(const std::shared_ptr<ILinksManager>& manager);
    void SetLookAndFeel(const std::shared_ptr<ILookAndFeelManager>& manager);
    void SetNagScreenManager(const std::shared_ptr<NagScreen::IManager>& manager);

    /// The product's own lines of the start banner (the libraries it bundles, its own commit, ...),
    /// UTF-8, one a line; none unless set. The banner logs them in this order after "Product
    /// Version: " and before the shell's own lines (ShellVersionLines.h). It is written when the
    /// customization manager is set: set the lines before; lines set later wait for the next banner.
    void SetProductVersionLines(const std::vector<std::string>& lines);

    /// The splash, until the start has deleted its controller; null afterwards.
    std::shared_ptr<ISplash> GetSplash() const;
    /// Does nothing after the start.
    void SetSplash(const std::shared_ptr<ISplash>& splash);

    /// For parts that want to hear of a links manager arriving; never null.
    std::shared_ptr<LinksManagerSetter> GetLinksManagerSetter() const;

    /// The links manager. Before SetLinksManager this is a deprecated path: it logs three ERROR
    /// lines, builds the core library's LinksManager from the components and publishes it, so
    /// the components it needs must be set (otherwise NotNull's std::logic_error).
    std::shared_ptr<ILinksManager> GetLinksManager();
    /// The finished URL of `key`, from GetLinksManager().
    virtual QString GetUrl(const URLKeys& key);

    /// Days since "DateOfFirstStart" in the product settings; 0 when it was never written.
    int GetDaysPassed() const;

    /// Whether the product's installer is running. Waits up to half a second for it to let go of
    /// its mutex; needs no application object.
    static bool CheckRunnedInstaller();

    /// The name of the application mutex for the organization and application names that
    /// QCoreApplication holds now. Another program of the product (its installer) sets the same names
    /// and tries a Util::AppMutexLocker of it to learn whether the application runs. Products differ
    /// by their names; on Windows all have the one name their installers have always known. The
    /// application takes the name when it is constructed: set the names before, or the application
    /// name is the executable's.
    static std::string GetAppMutexName();

protected:
    bool notify(QObject* receiver, QEvent* event) override;

private:
    Application(int& argc, char** argv, const std::shared_ptr<ILifetimeManager>& lifetimeManager,
                bool mutexDisabled);

    class Impl;
    std::unique_ptr<Impl> d;
};

} // namespace Ostrel::App
