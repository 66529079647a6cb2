#pragma once

#include "App/Application/Gesture/Producer.h"

#include <QObject>
#include <QPoint>

namespace Ostrel::App {

/// The producer of the application's windows: decodes the gesture messages of top-level windows
/// and finds the receiver by walking the widget tree up from the widget under the finger. A
/// widget takes part by having a `Consumer` (an `Emitter`, a `Scroller`) among its children.
///
/// Nothing here installs itself: the host forwards native events, from a `NativeEventFilter` or
/// from the `nativeEvent` of its top-level widget.
class OSTREL_APP_EXPORT Gesture::Router : public QObject, public Gesture::Producer
{
    Q_OBJECT

public:
    explicit Router(QObject* parent);
    /// Speaks to the window system through `api`, which must outlive the router.
    Router(QObject* parent, IPlatformApi& api);
    ~Router() override;

    /// The shape of Qt's native event hook: `message` is the platform's window message, and
    /// `*result` is written only when the message was handled here (true).
    bool nativeEvent(const QByteArray& eventType, void* message, long* result);

    Consumer* Route(const Gesture& gesture) override;

    /// The first `Consumer` among the children of the widget at `screenPosition`, or of its
    /// nearest parent that has one; null for none. The widgets themselves are never asked.
    static Consumer* consumerAt(const QPoint& screenPosition);
};

} // namespace Ostrel::App
