#pragma once

#include "Interfaces/URLKeys.h"

#include <QString>

namespace Ostrel::App {

/// Opens addresses for the user.
class ILinksOpener
{
public:
    virtual ~ILinksOpener() = default;
    virtual void OpenUrl(const QString& url) const = 0;
    /// Opens the finished URL of `key`.
    virtual void OpenUrl(URLKeys key) const = 0;
};

} // namespace Ostrel::App
