#include "App/Application/Extensions/EmailCollector/EmailCollector.h"

#include "App/Application/ProductConstants.h"
#include "Email/EmailDialogCreator.h"
#include "Email/EmailSender.h"
#include "Events/NotNull.h"
#include "Foundation/PersonalDataMask.h"
#include "Interfaces/ICustomizationManager.h"
#include "Interfaces/IGateway.h"
#include "Interfaces/IHttpClient.h"
#include "Interfaces/ILaunchTypeProcessor.h"
#include "Interfaces/ILinksManager.h"
#include "Interfaces/IMailSettingsManager.h"
#include "QtUtil/SpontaneousDialog.h"

#include <glog/logging.h>

#include <future>

namespace Ostrel::App {

namespace {
constexpr int kCollectingLaunchType = 1;
constexpr char kEmailDialogAction[] = "EMAIL_DIALOG";

// Only the exact one-character "1" counts as set.
bool isSet(const ISettingsManager& settings, const std::string& key)
{
    return settings.GetString(key, std::string()) == "1";
}
} // namespace

class EmailCollector::Impl
{
public:
    Impl(const std::shared_ptr<ICustomizationManager>& customization,
         const std::shared_ptr<ILinksManager>& links, const std::shared_ptr<IMailSettingsManager>& mail,
         const std::shared_ptr<ILaunchTypeProcessor>& launchType,
         const std::shared_ptr<ExternalStimulus::IGateway>& gatewayArgument,
         const std::shared_ptr<Networking::IHttpClient>& httpClient)
        : customizationManager(customization)
        , linksManager(links)
        , mailSettingsManager(mail)
        , launchTypeProcessor(launchType)
        , gateway(gatewayArgument)
        , sender(std::make_unique<EmailSender>(linksManager.get(), httpClient, mailSettingsManager.get()))
    {
    }

    Core::NotNull<std::shared_ptr<ICustomizationManager>> customizationManager;
    Core::NotNull<std::shared_ptr<ILinksManager>> linksManager;
    Core::NotNull<std::shared_ptr<IMailSettingsManager>> mailSettingsManager;
    Core::NotNull<std::shared_ptr<ILaunchTypeProcessor>> launchTypeProcessor;
    std::shared_ptr<ExternalStimulus::IGateway> gateway;
    std::unique_ptr<EmailSender> sender;
    // Mutable: the steps are const, and the callback fulfils whichever promise is current.
    mutable std::promise<int> sendResult;
};

EmailCollector::EmailCollector(const std::shared_ptr<ICustomizationManager>& customizationManager,
                               const std::shared_ptr<ILinksManager>& linksManager,
                               const std::shared_ptr<IMailSettingsManager>& mailSettingsManager,
                               const std::shared_ptr<ILaunchTypeProcessor>& launchTypeProcessor,
                               const std::shared_ptr<ExternalStimulus::IGateway>& gateway,
                               const std::shared_ptr<Networking::IHttpClient>& httpClient)
    : d(std::make_unique<Impl>(customizationManager, linksManager, mailSettingsManager, launchTypeProcessor, gateway,
                               httpClient))
{
}

EmailCollector::~EmailCollector()
{
    // The sender goes first, so that no late answer reaches the promise while it is released.
    d->sender.reset();
    try {
        (void)d->sendResult.get_future();
    } catch (const std::exception& error) {
        LOG(WARNING) << error.what();
    }
}

void EmailCollector::onStart()
{
    if (!needCollectEmail())
        return;
    if (d->gateway)
        d->gateway->post({kEmailDialogAction, [this]() { showEmailDialog(); }});
    else
        showEmailDialog();
}

bool EmailCollector::needCollectEmail() const
{
    return d->launchTypeProcessor->GetLaunchType() == kCollectingLaunchType &&
           d->customizationManager->IsEmailCollectionEnabled() &&
           !isSet(*d->mailSettingsManager, ProductConstants::IsRegUser);
}

bool EmailCollector::needSendEmail() const
{
    return isSet(*d->mailSettingsManager, ProductConstants::IsConfirmed);
}

void EmailCollector::showEmailDialog() const
{
    // Again: a gateway may run this long after onStart.
    if (!needCollectEmail())
        return;
    const std::unique_ptr<AbstractEmailDialog> dialog =
        EmailDialogCreator::Create(d->mailSettingsManager.get(), d->linksManager.get(), d->customizationManager.get(),
                                   Util::SpontaneousDialog::GetMainWindow());
    if (!dialog) {
        LOG(ERROR) << "Failed to create Email Dialog Impl";
        return;
    }
    dialog->ShowModal();
    if (needSendEmail())
        sendUserEmail();
}

void EmailCollector::sendUserEmail() const
{
    d->sendResult = std::promise<int>();
    Impl* impl = d.get();
    d->sender->SendEmail({}, [impl](bool success, const std::string& message) {
        // The HTTP error may quote the request URL, which carries the name and the address.
        if (!success)
            LOG(ERROR) << Core::PersonalDataMask::mask(message);
        // A second fulfilment raises here; the sender catches and logs it.
        impl->sendResult.set_value(1);
    });
}

} // namespace Ostrel::App
