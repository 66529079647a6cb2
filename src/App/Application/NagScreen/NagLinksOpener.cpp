#include "App/Application/NagScreen/NagLinksOpener.h"

#include "App/Application/NagScreen/AcceptNagLink.h"
#include "Interfaces/ILinksOpener.h"

#include <QUrl>

namespace Ostrel::App::NagScreen {

NagLinksOpener::NagLinksOpener(const std::weak_ptr<ILinksOpener>& opener) : m_opener(opener) {}

NagLinksOpener::~NagLinksOpener() = default;

void NagLinksOpener::OpenUrl(const AbstractContent&, const QString& url, const QMap<QString, QVariant>&)
{
    if (!AcceptNagLink(QUrl(url, QUrl::TolerantMode)))
        return;
    if (const auto opener = m_opener.lock())
        opener->OpenUrl(url);
}

void NagLinksOpener::OpenUrl(const AbstractContent&, URLKeys key, const QMap<QString, QVariant>&)
{
    if (const auto opener = m_opener.lock())
        opener->OpenUrl(key);
}

std::shared_ptr<INagLinksOpener> fromLinksOpener(const std::shared_ptr<ILinksOpener>& opener)
{
    return std::make_shared<NagLinksOpener>(opener);
}

} // namespace Ostrel::App::NagScreen
