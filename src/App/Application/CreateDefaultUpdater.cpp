#include "App/Application/CreateDefaultUpdater.h"

#include "App/Application/Application.h"
#include "App/Application/HttpRequestUpdater.h"
#include "App/Application/RequiredComponent.h"
#include "Interfaces/ICustomizationManager.h"
#include "Interfaces/IHardwareInfo.h"
#include "Interfaces/IUserSettingsManager.h"

#include <stdexcept>

namespace Ostrel::App {

std::shared_ptr<IHttpRequestUpdater> createDefaultUpdater(const ITopManager& topManager)
{
    const char* const user = "HttpRequestUpdater";
    return std::make_shared<HttpRequestUpdater>(requiredComponent<ICustomizationManager>(topManager, user),
                                                requiredComponent<IUserSettingsManager>(topManager, user),
                                                requiredComponent<IHardwareInfo>(topManager, user));
}

std::shared_ptr<IHttpRequestUpdater> createDefaultUpdater()
{
    const auto* application = qobject_cast<Application*>(QCoreApplication::instance());
    if (!application)
        throw std::logic_error("createDefaultUpdater needs a running Ostrel::App::Application");
    return createDefaultUpdater(*application);
}

} // namespace Ostrel::App
