#include "App/Application/Gesture/Emitter.h"

namespace Ostrel::App {

class Gesture::Emitter::Impl
{
public:
    bool zoomEnabled = false;
    bool rotateEnabled = false;
    bool tapEnabled = false;
    bool pressAndTapEnabled = false;
    bool horizontalPanEnabled = false;
    bool verticalPanEnabled = false;
    bool panGutterEnabled = false;
    bool panInertiaEnabled = false;
};

Gesture::Emitter::Emitter(QObject* parent) : QObject(parent), d(std::make_unique<Impl>()) {}

Gesture::Emitter::~Emitter() = default;

void Gesture::Emitter::setZoomEnabled(bool enabled)
{
    d->zoomEnabled = enabled;
}
void Gesture::Emitter::setRotateEnabled(bool enabled)
{
    d->rotateEnabled = enabled;
}
void Gesture::Emitter::setTapEnabled(bool enabled)
{
    d->tapEnabled = enabled;
}
void Gesture::Emitter::setPressAndTapEnabled(bool enabled)
{
    d->pressAndTapEnabled = enabled;
}
void Gesture::Emitter::setHorizontalPanEnabled(bool enabled)
{
    d->horizontalPanEnabled = enabled;
}
void Gesture::Emitter::setVerticalPanEnabled(bool enabled)
{
    d->verticalPanEnabled = enabled;
}
void Gesture::Emitter::setPanGutterEnabled(bool enabled)
{
    d->panGutterEnabled = enabled;
}
void Gesture::Emitter::setPanInertiaEnabled(bool enabled)
{
    d->panInertiaEnabled = enabled;
}

int Gesture::Emitter::allOrNone(bool enabled)
{
    return enabled ? All : None;
}

void Gesture::Emitter::OnGesture(const PressAndTap& gesture)
{
    Q_EMIT pressAndTap(gesture);
}
void Gesture::Emitter::OnGesture(const Tap& gesture)
{
    Q_EMIT tap(gesture);
}
void Gesture::Emitter::OnGesture(const Rotate& gesture)
{
    Q_EMIT rotate(gesture);
}
void Gesture::Emitter::OnGesture(const Zoom& gesture)
{
    Q_EMIT zoom(gesture);
}
void Gesture::Emitter::OnGesture(const Pan& gesture)
{
    Q_EMIT pan(gesture);
}

int Gesture::Emitter::WantGesture(const PressAndTap&)
{
    return allOrNone(d->pressAndTapEnabled);
}
int Gesture::Emitter::WantGesture(const Tap&)
{
    return allOrNone(d->tapEnabled);
}
int Gesture::Emitter::WantGesture(const Rotate&)
{
    return allOrNone(d->rotateEnabled);
}
int Gesture::Emitter::WantGesture(const Zoom&)
{
    return allOrNone(d->zoomEnabled);
}

int Gesture::Emitter::WantGesture(const Pan&)
{
    // Never `All`: a switch left off must stay off at the platform.
    return (d->horizontalPanEnabled ? 4 : 0) | (d->verticalPanEnabled ? 2 : 0) |
           (d->panInertiaEnabled ? 8 : 0) | (d->panGutterEnabled ? 16 : 0);
}

} // namespace Ostrel::App
