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
#include <mutex>

namespace Ostrel::App {

namespace {
constexpr int CollectingLaunchType = 1;
constexpr char EmailDialogAction[] = "EMAIL_DIALOG";

// Only the exact one-character "1" counts as set.
bool isSet(const ISettingsManager& settings, const std::string& key)
{
    return settings.GetString(key, std::string()) == "1";
}

// What a send's answer reaches. The answer may come on any thread and at any time, also after the
// collector is gone (an HTTP client that reports late, a sender that lets a callback through), so
// it holds this by a weak pointer; the lock orders a late fulfilment against a new send replacing
// the promise on the GUI thread.
struct SendResult
{
    std::mutex mutex;
    std::promise<int> promise;
};
} // namespace

class EmailCollector::Impl
{
public:
    Impl(const std::shared_ptr<ICustomizationManager>& customization,
         const std::shared_ptr<ILinksManager>& links, const std::shared_ptr<IMailSettingsManager>& mail,
         const std::shared_ptr<ILaunchTypeProcessor>& launchType,
         const std::shared_ptr<ExternalStimulus::IGateway>& gatewayArgument,
         const std::shared_ptr<Networking::IHttpClient>& httpClient)
        : customizationManager(customization), linksManager(links), mailSettingsManager(mail),
          launchTypeProcessor(launchType), gateway(gatewayArgument),
          sender(std::make_unique<EmailSender>(linksManager.get(), httpClient, mailSettingsManager.get()))
    {
    }

    Core::NotNull<std::shared_ptr<ICustomizationManager>> customizationManager;
    Core::NotNull<std::shared_ptr<ILinksManager>> linksManager;
    Core::NotNull<std::shared_ptr<IMailSettingsManager>> mailSettingsManager;
    Core::NotNull<std::shared_ptr<ILaunchTypeProcessor>> launchTypeProcessor;
    std::shared_ptr<ExternalStimulus::IGateway> gateway;
    std::unique_ptr<EmailSender> sender;
    // The callback fulfils whichever promise is current.
    const std::shared_ptr<SendResult> sendResult = std::make_shared<SendResult>();
    // Actions a gateway may hold back until after this object is gone check it first.
    const std::shared_ptr<bool> aliveToken = std::make_shared<bool>(true);
};

EmailCollector::EmailCollector(const std::shared_ptr<ICustomizationManager>& customizationManager,
                               const std::shared_ptr<ILinksManager>& linksManager,
                               const std::shared_ptr<IMailSettingsManager>& mailSettingsManager,
                               const std::shared_ptr<ILaunchTypeProcessor>& launchTypeProcessor,
                               const std::shared_ptr<ExternalStimulus::IGateway>& gateway,
                               const std::shared_ptr<Networking::IHttpClient>& httpClient)
    : d(std::make_unique<Impl>(customizationManager, linksManager, mailSettingsManager, launchTypeProcessor,
                               gateway, httpClient))
{
}

EmailCollector::~EmailCollector()
{
    // The sender goes first, so that no late answer reaches the promise while it is released.
    d->sender.reset();
    try {
        const std::lock_guard<std::mutex> lock(d->sendResult->mutex);
        (void)d->sendResult->promise.get_future();
    } catch (const std::exception& error) {
        LOG(WARNING) << error.what();
    }
}

void EmailCollector::onStart()
{
    if (!needCollectEmail())
        return;
    if (d->gateway) {
        const std::weak_ptr<bool> alive = d->aliveToken;
        d->gateway->post({EmailDialogAction, [this, alive]() {
                              if (alive.lock())
                                  showEmailDialog();
                          }});
    } else {
        showEmailDialog();
    }
}

bool EmailCollector::needCollectEmail() const
{
    return d->launchTypeProcessor->GetLaunchType() == CollectingLaunchType &&
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
        EmailDialogCreator::Create(d->mailSettingsManager.get(), d->linksManager.get(),
                                   d->customizationManager.get(), Util::SpontaneousDialog::GetMainWindow());
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
    {
        const std::lock_guard<std::mutex> lock(d->sendResult->mutex);
        d->sendResult->promise = std::promise<int>();
    }
    const std::weak_ptr<SendResult> weakResult = d->sendResult;
    d->sender->SendEmail({}, [weakResult](bool success, const std::string& message) {
        // The HTTP error may quote the request URL, which carries the name and the address.
        if (!success)
            LOG(ERROR) << Core::PersonalDataMask::mask(message);
        const auto result = weakResult.lock();
        if (!result)
            return;
        const std::lock_guard<std::mutex> lock(result->mutex);
        // A second fulfilment raises here; the sender catches and logs it.
        result->promise.set_value(1);
    });
}

} // namespace Ostrel::App
