#pragma once

#include "App/Application/Gesture/Gesture.h"

#include <QAbstractNativeEventFilter>
#include <QObject>

#include <memory>

namespace Ostrel::App {

/// Hands the application's native events to one gesture `Router`, made at the first event as a
/// child of the filter. The library installs no filter; a host that wants gestures does:
/// `app.installNativeEventFilter(filter)`.
class OSTREL_APP_EXPORT NativeEventFilter : public QObject, public QAbstractNativeEventFilter
{
    Q_OBJECT

public:
    explicit NativeEventFilter(QObject* parent = nullptr);
    /// Its router speaks to the window system through `api`, which must outlive the filter.
    NativeEventFilter(Gesture::IPlatformApi& api, QObject* parent = nullptr);
    ~NativeEventFilter() override;

    bool nativeEventFilter(const QByteArray& eventType, void* message, long* result) override;

private:
    class Impl;
    std::unique_ptr<Impl> d;
};

} // namespace Ostrel::App
