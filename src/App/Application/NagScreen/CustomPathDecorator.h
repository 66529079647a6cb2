#pragma once

#include "App/Application/ostrel_app_export.h"
#include "Nag/IShowStrategy.h"

#include <QMap>
#include <QString>

#include <memory>

namespace Ostrel::App::NagScreen {

/// Shows, for chosen actions, a local main.qml in place of the nag the map gave, through the
/// strategy it wraps. For tools and nag authors; the product itself doesn't use it.
class OSTREL_APP_EXPORT CustomPathDecorator : public IShowStrategy
{
public:
    explicit CustomPathDecorator(const std::shared_ptr<IShowStrategy>& strategy);
    ~CustomPathDecorator() override;

    int ShowNag(AbstractContent& content) override;

    /// Replaces the nag of `action` by the main.qml at `path`. An empty path still replaces (and
    /// fails to load); RemoveCustomPath ends the replacement.
    void SetCustomPath(const QString& action, const QString& path);
    void RemoveCustomPath(const QString& action);
    QMap<QString, QString> CustomPaths() const;

private:
    std::shared_ptr<IShowStrategy> m_strategy;
    QMap<QString, QString> m_customPaths;
};

} // namespace Ostrel::App::NagScreen
