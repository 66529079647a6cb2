#include "QtUtil/UrlProtocol.h"

#include <atomic>

namespace Ostrel::Util {

namespace {

std::atomic<bool>& sslUsage()
{
    static std::atomic<bool> useSsl{true};
    return useSsl;
}

} // namespace

void SetDefaultSslUsage(bool useSsl)
{
    sslUsage().store(useSsl);
}

bool DefaultSslUsage()
{
    return sslUsage().load();
}

QString ReplaceUrlProtocol(const QString& url)
{
    // Only the scheme is touched: the rest may hold macros that a QUrl round trip would encode.
    const int colon = url.indexOf(QLatin1String("://"));
    if (colon < 0)
        return url;
    const QString scheme = url.left(colon);
    if (scheme.compare(QLatin1String("http"), Qt::CaseInsensitive) != 0 &&
        scheme.compare(QLatin1String("https"), Qt::CaseInsensitive) != 0)
        return url;
    return (DefaultSslUsage() ? QStringLiteral("https") : QStringLiteral("http")) + url.mid(colon);
}

} // namespace Ostrel::Util
