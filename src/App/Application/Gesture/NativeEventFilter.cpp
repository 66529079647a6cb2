#include "App/Application/Gesture/NativeEventFilter.h"

#include "App/Application/Gesture/IPlatformApi.h"
#include "App/Application/Gesture/Router.h"

namespace Ostrel::App {

class NativeEventFilter::Impl
{
public:
    Gesture::IPlatformApi* api = nullptr;
    // One router for the filter's life, made when the first event comes; it belongs to the filter
    // as a child, so a second filter has a router of its own rather than a dangling shared one.
    Gesture::Router* router = nullptr;
};

NativeEventFilter::NativeEventFilter(QObject* parent)
    : NativeEventFilter(Gesture::IPlatformApi::system(), parent)
{
}

NativeEventFilter::NativeEventFilter(Gesture::IPlatformApi& api, QObject* parent)
    : QObject(parent), d(std::make_unique<Impl>())
{
    d->api = &api;
}

NativeEventFilter::~NativeEventFilter() = default;

bool NativeEventFilter::nativeEventFilter(const QByteArray& eventType, void* message, long* result)
{
    if (!d->router)
        d->router = new Gesture::Router(this, *d->api);
    return d->router->nativeEvent(eventType, message, result);
}

} // namespace Ostrel::App
