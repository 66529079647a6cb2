#include "ExtensionsWiring.h"
#include "UpdatePackage.h"

#include "App/Application/Application.h"
#include "App/Application/Extensions/ApplicationRegistryUpdater/ApplicationRegistryUpdater.h"
#include "App/Application/Extensions/AutoUpdateRequester/AutoUpdateRequester.h"
#include "App/Application/Extensions/EmailCollector/EmailCollector.h"
#include "App/Application/Extensions/InstallerUpdater/InstallerUpdater.h"
#include "App/Application/Extensions/ModalFreeGateway.h"
#include "App/Application/Extensions/Tyfi/Tyfi.h"
#include "Foundation/PersonalDataMask.h"
#include "Foundation/Utf8.h"
#include "Http/HttpClient.h"
#include "Interfaces/ICustomizationManager.h"
#include "Interfaces/ILaunchTypeProcessor.h"
#include "Interfaces/ILifetimeManager.h"
#include "Interfaces/ILinksManager.h"

#include <glog/logging.h>

#include <functional>
#include <stdexcept>
#include <vector>

using namespace Ostrel;
using namespace Ostrel::App;

class ExtensionsWiring::Impl
{
public:
    std::shared_ptr<Networking::HttpClient> http = std::make_shared<Networking::HttpClient>();
    // The questions of the extensions wait until no other question (the usage statistics one,
    // asked from the event loop right after the start) is open.
    std::shared_ptr<ExternalStimulus::ModalFreeGateway> questions =
        std::make_shared<ExternalStimulus::ModalFreeGateway>();
    std::vector<std::unique_ptr<IExtension>> extensions;

    // A missing component leaves its extension out, with a line in the log; the rest still run.
    void add(const char* name, const std::function<std::unique_ptr<IExtension>()>& build)
    {
        try {
            extensions.push_back(build());
        } catch (const std::logic_error& error) {
            LOG(WARNING) << "Start-up extension " << name << " left out: " << error.what();
        }
    }
};

ExtensionsWiring::ExtensionsWiring(Application& application, ILifetimeManager& lifetime)
    : d(std::make_unique<Impl>())
{
    const auto customization = application.GetCustomizationManager();
    const auto product = application.GetProductSettingsManager();
    const auto links = application.GetLinksManager();
    const auto gateway = application.GetExternalStimulusGateway();
    const auto launchType = application.GetLaunchTypeProcessor();

    d->add("ApplicationRegistryUpdater",
           [&]() { return std::make_unique<ApplicationRegistryUpdater>(product); });
    d->add("InstallerUpdater", [&]() { return std::make_unique<InstallerUpdater>(product); });
    d->add("AutoUpdateRequester", [&]() {
        auto requester = std::make_unique<AutoUpdateRequester>(customization, product);
        const std::weak_ptr<ILinksManager> weakLinks = links;
        const std::weak_ptr<Networking::HttpClient> weakHttp = d->http;
        // The sample host has no updater: it asks the update service once and logs the answer.
        requester->setAutoUpdateRequestCallback([weakLinks, weakHttp]() {
            const auto linksManager = weakLinks.lock();
            const auto http = weakHttp.lock();
            if (!linksManager || !http)
                return;
            Networking::HttpRequest request;
            request.url =
                Util::QStringToUtf8(updatePackageUrl(linksManager->GetUrl(URLKeys::CHECK_FOR_UPDATES_URL)));
            LOG(INFO) << "Update check requested: " << Core::PersonalDataMask::mask(request.url);
            http->send(request, [](const Networking::HttpResponse& response) {
                if (response.error.empty())
                    LOG(INFO) << "Update check answered with status " << response.status;
                else
                    LOG(WARNING) << "Update check failed: " << response.error;
            });
        });
        return requester;
    });
    d->add("Tyfi", [&]() {
        auto tyfi = std::make_unique<Tyfi>(customization, links, application.GetInstallerSettingsManager(),
                                           product, launchType, gateway);
        // This product thanks for an installation and for an update, not on every start; a
        // customization without a page waits for nothing.
        const std::weak_ptr<ILaunchTypeProcessor> weakLaunchType = launchType;
        const std::weak_ptr<ICustomizationManager> weakCustomization = customization;
        tyfi->setCustomNeedOpenChecker([weakLaunchType, weakCustomization]() {
            const auto type = weakLaunchType.lock();
            const auto custom = weakCustomization.lock();
            return type && custom && !custom->GetPageType().empty() &&
                   (type->GetLaunchType() == ILaunchTypeProcessor::FirstAfterInstall ||
                    type->GetLaunchType() == ILaunchTypeProcessor::FirstAfterUpdate);
        });
        return tyfi;
    });

    d->add("EmailCollector", [&]() {
        return std::make_unique<EmailCollector>(customization, links, application.GetMailSettingsManager(),
                                                launchType, d->questions, d->http);
    });

    Impl* impl = d.get();
    lifetime.addOnStartCallback([impl]() {
        for (const auto& extension : impl->extensions)
            extension->onStart();
    });
}

std::shared_ptr<ExternalStimulus::IGateway> ExtensionsWiring::questions() const
{
    return d->questions;
}

// The extensions go before the HTTP client that a send of theirs may still use.
ExtensionsWiring::~ExtensionsWiring()
{
    d->extensions.clear();
}
