#include "App/Application/CreateDefaultUpdater.h"

#include "App/Application/Application.h"
#include "App/Application/HttpRequestUpdater.h"
#include "Interfaces/ICustomizationManager.h"
#include "Interfaces/IHardwareInfo.h"
#include "Interfaces/IUserSettingsManager.h"

#include <stdexcept>

namespace Ostrel::App {

std::shared_ptr<IHttpRequestUpdater> createDefaultUpdater(const ITopManager& topManager)
{
    return std::make_shared<HttpRequestUpdater>(topManager.get<ICustomizationManager>(),
                                                topManager.get<IUserSettingsManager>(),
                                                topManager.get<IHardwareInfo>());
}

std::shared_ptr<IHttpRequestUpdater> createDefaultUpdater()
{
    const auto* application = qobject_cast<Application*>(QCoreApplication::instance());
    if (!application)
        throw std::logic_error("createDefaultUpdater needs a running Ostrel::App::Application");
    return createDefaultUpdater(*application);
}

} // namespace Ostrel::App
