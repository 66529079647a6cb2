#pragma once

#include "App/Application/ostrel_app_export.h"
#include "Nag/INagLinksOpener.h"

#include <memory>

namespace Ostrel::App {
class ILinksOpener;
}

namespace Ostrel::App::NagScreen {

/// Hands a nag's link to the application's links opener; the content and the parameters stop here.
/// A links opener that has gone drops the link silently. Only links that AcceptNagLink takes are
/// handed on.
class OSTREL_APP_EXPORT NagLinksOpener : public INagLinksOpener
{
public:
    explicit NagLinksOpener(const std::weak_ptr<ILinksOpener>& opener);
    ~NagLinksOpener() override;

    void OpenUrl(const AbstractContent& content, const QString& url,
                 const QMap<QString, QVariant>& params) override;
    void OpenUrl(const AbstractContent& content, URLKeys key, const QMap<QString, QVariant>& params) override;

private:
    std::weak_ptr<ILinksOpener> m_opener;
};

/// The nag side's view of a links opener.
OSTREL_APP_EXPORT std::shared_ptr<INagLinksOpener>
fromLinksOpener(const std::shared_ptr<ILinksOpener>& opener);

} // namespace Ostrel::App::NagScreen
