#pragma once

#include "App/Application/ostrel_app_export.h"

#include <QString>

#include <functional>
#include <map>
#include <memory>

namespace Ostrel::App {

class IProductSettingsManager;

/// The browser the product's pages open in: a path to its executable, or empty for the system's
/// default. The platform finds the path for an executable's name (FindPath); this class keeps it,
/// stores it under "PreferredBrowser" in the product settings and reports it as
/// "PREFERRED_BROWSER" to tracking.
class OSTREL_APP_EXPORT AbstractPreferredBrowser
{
public:
    struct PreferredBrowserContext
    {
        /// The current locale; nothing here reads it.
        QString locale;
        /// The executable's file name as the installer wrote it, in lower case ("chrome.exe").
        QString name;
        /// The path found and stored earlier.
        QString path;
    };

    /// `settings` may be null: nothing is stored then.
    explicit AbstractPreferredBrowser(const std::shared_ptr<IProductSettingsManager>& settings);
    AbstractPreferredBrowser(const AbstractPreferredBrowser& other);
    AbstractPreferredBrowser& operator=(const AbstractPreferredBrowser& other);
    virtual ~AbstractPreferredBrowser();

    /// A stored path counts only when there is no name and its file exists; a name always
    /// means a new search. Stores and reports the result.
    void Init(const PreferredBrowserContext& context);
    /// The executable's file name; empty when there is no path. Never searches.
    QString Name() const;
    /// The path, searching again (through the context callback) when it is empty or its file
    /// is gone. Empty means the system's default browser.
    QString Path();
    void SetContextCallback(const std::function<PreferredBrowserContext()>& callback);
    /// The user agent of the browser, that of "browser.exe" for one that isn't known.
    QString UserAgent() const;

protected:
    virtual QString FindPath(const PreferredBrowserContext& context) = 0;

private:
    static const std::map<QString, QString>& userAgentMap();

    QString m_path;
    std::function<PreferredBrowserContext()> m_contextCallback;
    std::shared_ptr<IProductSettingsManager> m_settings;
};

} // namespace Ostrel::App
