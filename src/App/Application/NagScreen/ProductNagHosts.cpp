#include "App/Application/NagScreen/ProductNagHosts.h"

#include "Foundation/Utf8.h"
#include "Interfaces/ICustomizationManager.h"
#include "Interfaces/URLKeys.h"

#include <QUrl>

namespace Ostrel::App::NagScreen {

namespace {

void addHostOf(QStringList& hosts, const QString& url)
{
    const QString host = QUrl(url, QUrl::TolerantMode).host().toLower();
    if (!host.isEmpty() && !hosts.contains(host))
        hosts << host;
}

} // namespace

QStringList ProductNagHosts(const ICustomizationManager* customization)
{
    QStringList hosts;
    for (const auto& [endpoint, defaultHost] : UrlEndpointHosts()) {
        if (endpoint != "messages")
            continue;
        // The links manager puts a customized host (a port may come with it) behind "https://".
        const std::string custom =
            customization ? customization->GetCustomValue("Hosts/" + endpoint) : std::string();
        addHostOf(hosts,
                  QStringLiteral("https://") + Util::Utf8ToQString(custom.empty() ? defaultHost : custom));
    }
    const std::string customNag =
        customization ? customization->GetCustomValue("Links/CUSTOM_WEB_NAG_URL") : std::string();
    if (!customNag.empty())
        addHostOf(hosts, Util::Utf8ToQString(customNag));
    return hosts;
}

} // namespace Ostrel::App::NagScreen
