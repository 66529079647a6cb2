#include "App/Application/Extensions/ApplicationRegistryUpdater/ApplicationRegistryUpdater.h"

#include "App/Application/ProductConstants.h"
#include "Events/NotNull.h"
#include "Foundation/Utf8.h"
#include "Interfaces/IProductSettingsManager.h"

#include <QCoreApplication>
#include <QDir>

namespace Ostrel::App {

class ApplicationRegistryUpdater::Impl
{
public:
    explicit Impl(const std::shared_ptr<IProductSettingsManager>& settings) : productSettingsManager(settings)
    {
    }
    Core::NotNull<std::shared_ptr<IProductSettingsManager>> productSettingsManager;
};

ApplicationRegistryUpdater::ApplicationRegistryUpdater(
    const std::shared_ptr<IProductSettingsManager>& productSettingsManager)
    : d(std::make_unique<Impl>(productSettingsManager))
{
}

ApplicationRegistryUpdater::~ApplicationRegistryUpdater() = default;

void ApplicationRegistryUpdater::onStart()
{
    // applicationDirPath never ends in a separator (the root aside, which no program lies in).
    const QString path = QDir::toNativeSeparators(QCoreApplication::applicationDirPath()) + QDir::separator();
    d->productSettingsManager->SetString(ProductConstants::Path, Util::QStringToUtf8(path));
}

} // namespace Ostrel::App
