#include "App/Application/Extensions/InstallerUpdater/InstallerUpdater.h"

#include "App/Application/ProductConstants.h"
#include "Events/NotNull.h"
#include "Foundation/SystemInfo.h"
#include "Interfaces/IProductSettingsManager.h"

#include <string>

namespace Ostrel::App {

class InstallerUpdater::Impl
{
public:
    explicit Impl(const std::shared_ptr<IProductSettingsManager>& settings) : productSettingsManager(settings)
    {
    }
    Core::NotNull<std::shared_ptr<IProductSettingsManager>> productSettingsManager;
};

InstallerUpdater::InstallerUpdater(const std::shared_ptr<IProductSettingsManager>& productSettingsManager)
    : d(std::make_unique<Impl>(productSettingsManager))
{
}

InstallerUpdater::~InstallerUpdater() = default;

void InstallerUpdater::onStart()
{
    d->productSettingsManager->SetString(ProductConstants::ArchitectBits,
                                         "x" + std::to_string(Core::AppBits()));
}

} // namespace Ostrel::App
