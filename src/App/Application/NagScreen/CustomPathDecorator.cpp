#include "App/Application/NagScreen/CustomPathDecorator.h"

#include "Nag/AbstractContent.h"

namespace Ostrel::App::NagScreen {

CustomPathDecorator::CustomPathDecorator(const std::shared_ptr<IShowStrategy>& strategy)
    : m_strategy(strategy)
{
}

CustomPathDecorator::~CustomPathDecorator() = default;

int CustomPathDecorator::ShowNag(AbstractContent& content)
{
    const auto path = m_customPaths.constFind(content.AppAction());
    if (path != m_customPaths.constEnd())
        content.LoadFromPath(path.value());
    return m_strategy->ShowNag(content);
}

void CustomPathDecorator::SetCustomPath(const QString& action, const QString& path)
{
    m_customPaths.insert(action, path);
}

void CustomPathDecorator::RemoveCustomPath(const QString& action)
{
    m_customPaths.remove(action);
}

QMap<QString, QString> CustomPathDecorator::CustomPaths() const
{
    return m_customPaths;
}

} // namespace Ostrel::App::NagScreen
