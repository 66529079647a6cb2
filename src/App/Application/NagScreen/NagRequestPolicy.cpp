#include "App/Application/NagScreen/NagRequestPolicy.h"

#include "App/Application/NagScreen/ProductNagHosts.h"

#include "Foundation/Utf8.h"
#include "Interfaces/ICustomizationManager.h"
#include "Interfaces/URLKeys.h"
#include "Nag/NagConfig.h"
#include "Nag/NagContext.h"
#include "QtUtil/UrlProtocol.h"

#include <QUrl>

#include <vector>

namespace Ostrel::App::NagScreen {

namespace {

const QString& OpenNagAction()
{
    static const QString action = QStringLiteral("open_nag");
    return action;
}

void addHostOf(QStringList& hosts, const QString& url)
{
    const QString host = QUrl(url, QUrl::TolerantMode).host().toLower();
    if (!host.isEmpty() && !hosts.contains(host))
        hosts << host;
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
    QStringList hosts;
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
    for (const QString& host : nagHosts)
        addHostOf(d->hosts, QStringLiteral("https://") + host);
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
    return NagRequestPolicy(sources, ProductNagHosts(customization), !Util::DefaultSslUsage());
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
    // The host decides, as for what nag content may reach: the product's server, whatever the port.
    if (d->hosts.contains(url.host().toLower()))
        return {};
    return QStringLiteral("the host \"%1\" is not one of the product's nag servers").arg(url.authority());
}

bool NagRequestPolicy::Allows(const QUrl& url) const
{
    return Refusal(url).isEmpty();
}

} // namespace Ostrel::App::NagScreen
