#include "App/Application/URLHandler.h"

#include "App/Application/BrowserVariable.h"
#include "App/Application/PreferredBrowser.h"
#include "Foundation/PersonalDataMask.h"
#include "Foundation/Utf8.h"
#include "Tracking/ApplicationTrackerFactory.h"

#include <QDesktopServices>
#include <QProcess>

namespace Ostrel::App {

namespace {
const char* const Slot = "OpenURLWithPreferredBrowser";

// The browser gets the whole URL; tracking never gets the user's name or address.
std::string recorded(const QString& part)
{
    return Util::QStringToUtf8(Core::PersonalDataMask::mask(part));
}
} // namespace

URLHandler::URLHandler(QObject* parent, PreferredBrowser& browser) : QObject(parent), m_browser(browser)
{
    QDesktopServices::setUrlHandler(QStringLiteral("http"), this, Slot);
    QDesktopServices::setUrlHandler(QStringLiteral("https"), this, Slot);
}

URLHandler::~URLHandler()
{
    QDesktopServices::unsetUrlHandler(QStringLiteral("http"));
    QDesktopServices::unsetUrlHandler(QStringLiteral("https"));
}

void URLHandler::OpenURLWithPreferredBrowser(const QUrl& url)
{
    // Inside a URL handler Qt hands openUrl to the system, so the fallbacks don't come back here.
    // A browser chosen meanwhile (Name() does not search) counts again.
    QString path;
    if (!m_useSystemBrowser || !m_browser.Name().isEmpty())
        path = m_browser.Path();

    bool opened = false;
    bool systemDefault = true;
    if (!path.isEmpty() && QProcess::startDetached(path, {url.toString()})) {
        opened = true;
        systemDefault = false;
    } else {
        // A browser that failed to start may start next time: the flag stays as it is. Without
        // one, the browsers the person named in $BROWSER come before the desktop's default.
        if (path.isEmpty())
            m_useSystemBrowser = true;
        const QString named = BrowserVariable::open(url);
        if (!named.isEmpty()) {
            path = named;
            opened = true;
            systemDefault = false;
        } else {
            opened = QDesktopServices::openUrl(url);
        }
    }

    const auto tracker = Tracking::ApplicationTrackerFactory::getApplicationTracker();
    if (!tracker)
        return;
    tracker->sendEvent("URL_OPEN", {
                                       {"STATUS", opened ? "SUCCESS" : "FAIL"},
                                       {"BROWSER_PATH", Util::QStringToUtf8(path)},
                                       {"DEFAULT_BROWSER", systemDefault ? "YES" : "NO"},
                                       {"NAVIGATE_URL", recorded(url.toString())},
                                       {"SOURCE", recorded(url.host(QUrl::FullyDecoded))},
                                       {"URI", recorded(url.path(QUrl::FullyDecoded))},
                                       {"ARGS", recorded(url.query())},
                                   });
}

} // namespace Ostrel::App
