#include "App/Application/NagScreen/NagRequestPolicy.h"

#include "Interfaces/ICustomizationManager.h"
#include "Interfaces/URLKeys.h"
#include "Nag/NagConfig.h"
#include "Nag/NagContext.h"
#include "QtUtil/UrlProtocol.h"
#include "QtUtil/Utf8.h"

#include <QUrl>

#include <vector>

namespace Ostrel::App::NagScreen {

namespace {

const QString& OpenNagAction()
{
    static const QString action = QStringLiteral("open_nag");
    return action;
}

struct HostAndPort
{
    QString host;
    int port = -1;
};

// "host" or "host:port"; the form of the customization's "Hosts/" values.
HostAndPort parseAuthority(const QString& authority)
{
    QUrl url;
    url.setAuthority(authority.trimmed(), QUrl::StrictMode);
    return {url.host(), url.port()};
}

// Paths are compared as they would load: "qrc:/a/../b.qml" is "qrc:/b.qml".
QUrl normalized(const QUrl& url)
{
    return url.adjusted(QUrl::NormalizePathSegments);
}

} // namespace

class NagRequestPolicy::Impl
{
public:
    std::vector<QUrl> ownSources;
    std::vector<HostAndPort> hosts;
    bool allowHttp = false;
};

NagRequestPolicy::NagRequestPolicy(const QStringList& ownSources, const QStringList& nagHosts, bool allowHttp)
    : d(std::make_unique<Impl>())
{
    for (const QString& source : ownSources) {
        const QUrl url(source);
        if (url.isValid() && url.scheme() == QLatin1String("qrc"))
            d->ownSources.push_back(normalized(url));
    }
    for (const QString& entry : nagHosts) {
        HostAndPort host = parseAuthority(entry);
        if (!host.host.isEmpty())
            d->hosts.push_back(std::move(host));
    }
    d->allowHttp = allowHttp;
}

NagRequestPolicy::~NagRequestPolicy() = default;
NagRequestPolicy::NagRequestPolicy(NagRequestPolicy&&) noexcept = default;
NagRequestPolicy& NagRequestPolicy::operator=(NagRequestPolicy&&) noexcept = default;

NagRequestPolicy NagRequestPolicy::ForProduct(const ICustomizationManager* customization,
                                              const NagConfig* config)
{
    QStringList sources;
    if (config) {
        for (const QString& mode :
             {AppMode::Free(), AppMode::Trial(), AppMode::Licensed(), AppMode::AnyMode()}) {
            for (const auto& [action, record] : config->ActionsForMode(mode)) {
                if (action != OpenNagAction())
                    sources << record.source;
            }
        }
    }
    return NagRequestPolicy(sources, NagHosts(customization), !Util::DefaultSslUsage());
}

QStringList NagRequestPolicy::NagHosts(const ICustomizationManager* customization)
{
    QStringList hosts;
    for (const auto& [endpoint, defaultHost] : UrlEndpointHosts()) {
        if (endpoint != "messages")
            continue;
        const std::string custom =
            customization ? customization->GetCustomValue("Hosts/" + endpoint) : std::string();
        hosts << Util::Utf8ToQString(custom.empty() ? defaultHost : custom);
    }
    if (!customization)
        return hosts;
    for (const URLKeys key : {NAGS_REQUEST_URL, CUSTOM_WEB_NAG_URL}) {
        const std::string custom = customization->GetCustomValue("Links/" + UrlKeyNames().at(key));
        const QUrl url(Util::Utf8ToQString(custom), QUrl::TolerantMode);
        if (!custom.empty() && !url.host().isEmpty())
            hosts << (url.port() < 0 ? url.host()
                                     : url.host() + QLatin1Char(':') + QString::number(url.port()));
    }
    return hosts;
}

QString NagRequestPolicy::Refusal(const QUrl& url) const
{
    if (url.isEmpty())
        return QStringLiteral("the address is empty");
    if (!url.isValid())
        return QStringLiteral("the address is malformed (%1)").arg(url.errorString());
    const QString scheme = url.scheme();
    if (scheme == QLatin1String("qrc")) {
        const QUrl wanted = normalized(url);
        for (const QUrl& source : d->ownSources) {
            if (source == wanted)
                return {};
        }
        return QStringLiteral("it is not one of the product's own nags");
    }
    const bool web = scheme == QLatin1String("https") || (d->allowHttp && scheme == QLatin1String("http"));
    if (!web)
        return QStringLiteral("the scheme \"%1\" is not allowed").arg(scheme);
    if (!url.userInfo().isEmpty())
        return QStringLiteral("the address carries user information");
    const int defaultPort = scheme == QLatin1String("https") ? 443 : 80;
    for (const HostAndPort& allowed : d->hosts) {
        if (url.host().compare(allowed.host, Qt::CaseInsensitive) == 0 &&
            url.port(defaultPort) == (allowed.port < 0 ? defaultPort : allowed.port))
            return {};
    }
    return QStringLiteral("the host \"%1\" is not one of the product's nag servers").arg(url.authority());
}

bool NagRequestPolicy::Allows(const QUrl& url) const
{
    return Refusal(url).isEmpty();
}

} // namespace Ostrel::App::NagScreen
