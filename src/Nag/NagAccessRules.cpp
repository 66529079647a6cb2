#include "Nag/NagAccessRules.h"

#include <QUrl>

namespace Ostrel::App::NagScreen {

bool NagAccessRules::allowsRemote(const QUrl& url) const
{
    if (!url.isValid())
        return false;
    const QString scheme = url.scheme();
    if (scheme != QLatin1String("https") && !(allowHttp && scheme == QLatin1String("http")))
        return false;
    const QString host = url.host();
    return !host.isEmpty() && hosts.contains(host, Qt::CaseInsensitive);
}

} // namespace Ostrel::App::NagScreen
