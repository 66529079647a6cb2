#include "App/Application/Extensions/AutoUpdateRequester/AutoUpdateRequester.h"

#include "App/Application/ProductConstants.h"
#include "Events/NotNull.h"
#include "Interfaces/ICustomizationManager.h"
#include "Interfaces/IProductSettingsManager.h"

#include <QObject>
#include <QTimer>

namespace Ostrel::App {

namespace {
constexpr bool AutoUpdateDefault = true;
} // namespace

class AutoUpdateRequester::Impl
{
public:
    Impl(const std::shared_ptr<ICustomizationManager>& customization,
         const std::shared_ptr<IProductSettingsManager>& settings)
        : customizationManager(customization), productSettingsManager(settings)
    {
    }
    Core::NotNull<std::shared_ptr<ICustomizationManager>> customizationManager;
    Core::NotNull<std::shared_ptr<IProductSettingsManager>> productSettingsManager;
    std::function<void()> autoUpdateRequestCallback;
    std::chrono::milliseconds requestDelay{5000};
    // The context of the pending timers: they die with it.
    QObject timerContext;
};

AutoUpdateRequester::AutoUpdateRequester(
    const std::shared_ptr<ICustomizationManager>& customizationManager,
    const std::shared_ptr<IProductSettingsManager>& productSettingsManager)
    : d(std::make_unique<Impl>(customizationManager, productSettingsManager))
{
}

AutoUpdateRequester::~AutoUpdateRequester() = default;

void AutoUpdateRequester::onStart()
{
    if (!d->productSettingsManager->GetBool(ProductConstants::AutoUpdate, AutoUpdateDefault))
        return;
    Impl* impl = d.get();
    QTimer::singleShot(d->requestDelay, &d->timerContext, [impl]() {
        // A copy, so that a callback may replace itself.
        const std::function<void()> callback = impl->autoUpdateRequestCallback;
        if (callback)
            callback();
    });
}

void AutoUpdateRequester::setAutoUpdateRequestCallback(const std::function<void()>& callback)
{
    d->autoUpdateRequestCallback = callback;
}

void AutoUpdateRequester::setRequestDelay(std::chrono::milliseconds delay)
{
    d->requestDelay = delay;
}

} // namespace Ostrel::App
