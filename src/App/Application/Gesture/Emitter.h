#pragma once

#include "App/Application/Gesture/Consumer.h"

#include <QMetaType>
#include <QObject>

#include <memory>

namespace Ostrel::App {

/// A ready-made receiver: eight switches say which gestures it wants, and the gestures come out
/// as signals. Made as a child of a widget, it takes the gestures over that widget.
class OSTREL_APP_EXPORT Gesture::Emitter : public QObject, public Gesture::Consumer
{
    Q_OBJECT

public:
    explicit Emitter(QObject* parent);
    ~Emitter() override;

    void setZoomEnabled(bool enabled);
    void setRotateEnabled(bool enabled);
    void setTapEnabled(bool enabled);
    void setPressAndTapEnabled(bool enabled);
    void setHorizontalPanEnabled(bool enabled);
    void setVerticalPanEnabled(bool enabled);
    void setPanGutterEnabled(bool enabled);
    void setPanInertiaEnabled(bool enabled);

    // Written with the full namespace: receivers connect to these by their text.
Q_SIGNALS:
    void pan(const Ostrel::App::Gesture::Pan& gesture);
    void zoom(const Ostrel::App::Gesture::Zoom& gesture);
    void rotate(const Ostrel::App::Gesture::Rotate& gesture);
    void tap(const Ostrel::App::Gesture::Tap& gesture);
    void pressAndTap(const Ostrel::App::Gesture::PressAndTap& gesture);

private:
    static int allOrNone(bool enabled);

    void OnGesture(const PressAndTap& gesture) override;
    void OnGesture(const Tap& gesture) override;
    void OnGesture(const Rotate& gesture) override;
    void OnGesture(const Zoom& gesture) override;
    void OnGesture(const Pan& gesture) override;
    int WantGesture(const PressAndTap& gesture) override;
    int WantGesture(const Tap& gesture) override;
    int WantGesture(const Rotate& gesture) override;
    int WantGesture(const Zoom& gesture) override;
    int WantGesture(const Pan& gesture) override;

    class Impl;
    std::unique_ptr<Impl> d;
};

} // namespace Ostrel::App

Q_DECLARE_METATYPE(Ostrel::App::Gesture::Pan)
Q_DECLARE_METATYPE(Ostrel::App::Gesture::Zoom)
Q_DECLARE_METATYPE(Ostrel::App::Gesture::Rotate)
Q_DECLARE_METATYPE(Ostrel::App::Gesture::Tap)
Q_DECLARE_METATYPE(Ostrel::App::Gesture::PressAndTap)
