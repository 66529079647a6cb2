#pragma once

#include "Nag/IWebNagUrlGenerator.h"

#include <QUrl>

namespace Ostrel::Test {

/// Sends every web nag to one address, whatever the nag and its context.
class FixedUrlGenerator : public App::NagScreen::IWebNagUrlGenerator
{
public:
    explicit FixedUrlGenerator(QUrl fixed) : url(std::move(fixed)) {}
    QUrl Generate(const QString&, const QString&, const QString&) override { return url; }
    QUrl Generate(const App::NagScreen::NagContext&) override { return url; }

    QUrl url;
};

} // namespace Ostrel::Test
