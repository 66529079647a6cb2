#include "App/Application/AbstractPreferredBrowser.h"

#include "Foundation/Utf8.h"
#include "Interfaces/IProductSettingsManager.h"
#include "Tracking/ApplicationTrackerFactory.h"

#include <QFile>
#include <QFileInfo>

#include <utility>
#include <vector>

namespace Ostrel::App {

namespace {

constexpr char PreferredBrowserKey[] = "PreferredBrowser";

// The one-letter codes of the reports, searched in this order.
const std::vector<std::pair<QString, QString>>& browserCodes()
{
    static const std::vector<std::pair<QString, QString>> codes = {
        {QStringLiteral("chrome.exe"), QStringLiteral("C")},
        {QStringLiteral("msedge.exe"), QStringLiteral("E")},
        {QStringLiteral("firefox.exe"), QStringLiteral("F")},
        {QStringLiteral("iexplore.exe"), QStringLiteral("I")},
        {QStringLiteral("launcher.exe"), QStringLiteral("O")},
        {QStringLiteral("safari.exe"), QStringLiteral("S")},
        {QStringLiteral("browser.exe"), QStringLiteral("Y")},
    };
    return codes;
}

QString browserCode(const QString& name)
{
    for (const auto& [browser, code] : browserCodes()) {
        if (browser == name)
            return code;
    }
    return QString();
}

} // namespace

const std::map<QString, QString>& AbstractPreferredBrowser::userAgentMap()
{
    // Opera is known by its launcher; "opera.exe" has no row of its own.
    static const std::map<QString, QString> agents = {
        {QStringLiteral("browser.exe"),
         QStringLiteral("Mozilla/5.0 (Windows NT 6.1; WOW64) AppleWebKit/537.36 (KHTML, like Gecko) "
                        "Chrome/30.0.1599.12785 YaBrowser/13.12.1599.12785 Safari/537.36")},
        {QStringLiteral("chrome.exe"),
         QStringLiteral(
             "Mozilla/5.0 (Windows NT 6.1) AppleWebKit/537.36 (KHTML, like Gecko) Chrome/41.0.2228.0 "
             "Safari/537.36")},
        {QStringLiteral("firefox.exe"),
         QStringLiteral("Mozilla/5.0 (Windows NT 6.1; WOW64; rv:40.0) Gecko/20100101 Firefox/40.1")},
        {QStringLiteral("iexplore.exe"),
         QStringLiteral("Mozilla/5.0 (Windows NT 6.1; WOW64; Trident/7.0; AS; rv:11.0) like Gecko")},
        {QStringLiteral("launcher.exe"),
         QStringLiteral("Opera/9.80 (Windows NT 6.0) Presto/2.12.388 Version/12.14")},
        {QStringLiteral("msedge.exe"),
         QStringLiteral("Mozilla/5.0 (Windows NT 10.0; Win64; x64) AppleWebKit/537.36 (KHTML, like Gecko) "
                        "Chrome/96.0.4664.55 Safari/537.36 Edg/96.0.1054.43")},
        {QStringLiteral("safari.exe"),
         QStringLiteral(
             "Mozilla/5.0 (Windows; U; Windows NT 6.1; en-US) AppleWebKit/533.20.25 (KHTML, like Gecko) "
             "Version/5.0.4 Safari/533.20.27")},
    };
    return agents;
}

AbstractPreferredBrowser::AbstractPreferredBrowser(const std::shared_ptr<IProductSettingsManager>& settings)
    : m_settings(settings)
{
}

AbstractPreferredBrowser::AbstractPreferredBrowser(const AbstractPreferredBrowser& other) = default;
AbstractPreferredBrowser&
AbstractPreferredBrowser::operator=(const AbstractPreferredBrowser& other) = default;
AbstractPreferredBrowser::~AbstractPreferredBrowser() = default;

void AbstractPreferredBrowser::Init(const PreferredBrowserContext& context)
{
    const QString previous = m_path;
    if (context.name.isEmpty() && !context.path.isEmpty() && QFile::exists(context.path))
        m_path = context.path;
    else
        m_path = FindPath(context);

    // An empty result is stored too: a stale path must not outlive the browser.
    if (!(!m_path.isEmpty() && m_path == previous) && m_settings)
        m_settings->SetString(PreferredBrowserKey, Util::QStringToUtf8(m_path));

    const auto tracker = Tracking::ApplicationTrackerFactory::getApplicationTracker();
    if (!tracker)
        return;
    const QString code = browserCode(context.name);
    tracker->sendEvent("PREFERRED_BROWSER",
                       {
                           {"WI_PREFERRED_BROWSER", Util::QStringToUtf8(code)},
                           {"BROWSER", m_path.isEmpty() ? "SYSTEM" : Util::QStringToUtf8(code)},
                           {"BROWSER_PATH", Util::QStringToUtf8(m_path)},
                       });
}

QString AbstractPreferredBrowser::Name() const
{
    return m_path.isEmpty() ? QString() : QFileInfo(m_path).fileName();
}

QString AbstractPreferredBrowser::Path()
{
    if (!m_path.isEmpty() && QFile::exists(m_path))
        return m_path;
    if (m_contextCallback)
        Init(m_contextCallback());
    return m_path;
}

void AbstractPreferredBrowser::SetContextCallback(const std::function<PreferredBrowserContext()>& callback)
{
    m_contextCallback = callback;
}

QString AbstractPreferredBrowser::UserAgent() const
{
    const auto& agents = userAgentMap();
    const auto found = agents.find(QFileInfo(m_path).fileName());
    return found != agents.end() ? found->second : agents.begin()->second;
}

} // namespace Ostrel::App
