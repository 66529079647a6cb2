#pragma once

#include "Interfaces/ILinksManager.h"

namespace Ostrel::Test {

/// A links manager that knows no address and opens nothing.
class FakeLinks : public App::ILinksManager
{
public:
    QString GetUrl(const QString&) const override { return {}; }
    QString GetUrl(App::URLKeys) const override { return {}; }
    QString GenerateUrl(const QString& url, QMap<QString, QString>) const override { return url; }
    void OpenUrl(const QString&) const override {}
    void OpenUrl(App::URLKeys) const override {}
};

} // namespace Ostrel::Test
