#pragma once

#include "Interfaces/URLKeys.h"

#include <QMap>
#include <QString>

namespace Ostrel::App {

/// Builds finished URLs from link keys or from templates.
class ILinksGenerator
{
public:
    virtual ~ILinksGenerator() = default;
    /// The finished URL for a key name; empty for a name that is no key.
    virtual QString GetUrl(const QString& key) const = 0;
    virtual QString GetUrl(URLKeys key) const = 0;
    /// A finished URL from `url`, a template in the form of UrlTemplates, with `parameters`
    /// filling its placeholders.
    virtual QString GenerateUrl(const QString& url, QMap<QString, QString> parameters) const = 0;
};

} // namespace Ostrel::App
