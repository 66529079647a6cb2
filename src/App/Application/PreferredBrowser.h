#pragma once

#include "App/Application/AbstractPreferredBrowser.h"
#include "App/Application/Extensions/Extension.h"
#include "App/Application/ostrel_app_export.h"

#include <memory>

namespace Ostrel::App {

class IBrowserSources;
class IInstallerSettingsManager;
class ILookAndFeelManager;
class URLHandler;

/// The preferred browser with the search for its executable, and the owner of the process's
/// URLHandler.
///
/// The search for a name ("chrome.exe", in lower case): a running process of that name wins;
/// then the MuiCache (programs the user ran, matched by exact lower-case file name); then the
/// registered browsers of the current user and of the machine (matched without regard to case,
/// commands with arguments passed over). What the sources are on each system: SystemBrowserSources.
class OSTREL_APP_EXPORT PreferredBrowser : public AbstractPreferredBrowser, public Extension
{
public:
    /// Takes over "http" and "https" for the process, and reads the context from the three
    /// components (each may be null) whenever the path has to be found.
    PreferredBrowser(const std::shared_ptr<ILookAndFeelManager>& lookAndFeel,
                     const std::shared_ptr<IProductSettingsManager>& productSettings,
                     const std::shared_ptr<IInstallerSettingsManager>& installerSettings);
    /// No URL handler and no context callback: the caller runs Init.
    explicit PreferredBrowser(const std::shared_ptr<IProductSettingsManager>& productSettings);
    /// The same over other sources than the system's (tests, tools).
    PreferredBrowser(const std::shared_ptr<IProductSettingsManager>& productSettings,
                     std::shared_ptr<IBrowserSources> sources);
    /// Gives "http" and "https" back to the system.
    ~PreferredBrowser() override;
    PreferredBrowser(const PreferredBrowser&) = delete;
    PreferredBrowser& operator=(const PreferredBrowser&) = delete;

protected:
    QString FindPath(const PreferredBrowserContext& context) override;

private:
    class Impl;
    std::unique_ptr<Impl> d;
};

} // namespace Ostrel::App
