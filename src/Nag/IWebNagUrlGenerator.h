#pragma once

#include "Nag/NagContext.h"

#include <QUrl>

namespace Ostrel::App::NagScreen {

/// Builds the address a web nag is fetched from.
class IWebNagUrlGenerator
{
public:
    virtual ~IWebNagUrlGenerator() = default;
    virtual QUrl Generate(const QString& mode, const QString& action, const QString& lang) = 0;
    virtual QUrl Generate(const NagContext& context) = 0;
};

} // namespace Ostrel::App::NagScreen
