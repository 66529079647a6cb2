#include "App/Application/Gesture/Router.h"

#include "App/Application/Gesture/Consumer.h"
#include "App/Application/Gesture/IPlatformApi.h"

#include <QApplication>
#include <QWidget>

namespace Ostrel::App {

namespace {

constexpr std::uint32_t WM_GESTURE = 0x0119;
constexpr std::uint32_t WM_GESTURENOTIFY = 0x011A;

} // namespace

Gesture::Router::Router(QObject* parent) : QObject(parent) {}

Gesture::Router::Router(QObject* parent, IPlatformApi& api) : QObject(parent), Producer(api) {}

Gesture::Router::~Router() = default;

bool Gesture::Router::nativeEvent(const QByteArray&, void* message, long* result)
{
    IPlatformApi& api = platformApi();
    const IPlatformApi::Message msg = api.readMessage(message);
    if (msg.message == WM_GESTURE) {
        // Only top-level windows decode; the default handling bubbles a child's gesture up to them.
        if (api.GetParent(msg.hwnd)) {
            *result = static_cast<long>(api.DefWindowProcW(msg.hwnd, msg.message, msg.wParam, msg.lParam));
            return true;
        }
        if (OnGesture(msg.hwnd, msg.wParam, msg.lParam)) {
            *result = 0;
            return true;
        }
    }
    // Any window that is asked gets configured, child or not.
    if (msg.message == WM_GESTURENOTIFY && OnGestureNotify(msg.hwnd, msg.wParam, msg.lParam)) {
        *result = 0;
        return true;
    }
    return false;
}

Gesture::Consumer* Gesture::Router::Route(const Gesture& gesture)
{
    return consumerAt(QPoint(gesture.screenX, gesture.screenY));
}

Gesture::Consumer* Gesture::Router::consumerAt(const QPoint& screenPosition)
{
    // The first consumer found decides alone, whatever it wants: an emitter with every switch off
    // keeps the gestures of its widget from the widgets around it.
    for (QWidget* widget = QApplication::widgetAt(screenPosition); widget; widget = widget->parentWidget()) {
        for (QObject* child : widget->children()) {
            if (auto* consumer = dynamic_cast<Consumer*>(child))
                return consumer;
        }
    }
    return nullptr;
}

} // namespace Ostrel::App
