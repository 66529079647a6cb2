#pragma once

#include "Interfaces/URLKeys.h"

#include <QMap>
#include <QString>
#include <QVariant>

namespace Ostrel::App::NagScreen {

class AbstractContent;

/// Opens a link that a nag asked for; the content and the nag's parameters travel along for
/// whoever wants to report the click.
class INagLinksOpener
{
public:
    virtual ~INagLinksOpener() = default;
    virtual void OpenUrl(const AbstractContent& content, const QString& url,
                         const QMap<QString, QVariant>& params) = 0;
    virtual void OpenUrl(const AbstractContent& content, URLKeys key,
                         const QMap<QString, QVariant>& params) = 0;
};

} // namespace Ostrel::App::NagScreen
