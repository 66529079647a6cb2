#pragma once

#include "App/Application/Gesture/Gesture.h"

#include <memory>

namespace Ostrel::App {

/// A receiver of gestures. `WantGesture` is asked once per touch sequence, before any gesture of
/// it arrives; `OnGesture` then gets every gesture of the sequence.
///
/// The answer for `Pan` is a mask: `All` (1) for everything, else 2 single-finger vertical,
/// 4 single-finger horizontal, 8 inertia, 16 gutter. Every other answer is `All` or `None`.
class OSTREL_APP_EXPORT Gesture::Consumer
{
public:
    /// A copy is another receiver: it has a handle of its own.
    Consumer(const Consumer& other);
    Consumer& operator=(const Consumer& other);
    virtual ~Consumer();

    /// Expires when this consumer is destroyed. A producer holds its receiver by it: a view can
    /// close in the middle of a touch sequence.
    std::weak_ptr<Consumer> weakHandle();

    virtual void OnGesture(const PressAndTap& gesture);
    virtual void OnGesture(const Tap& gesture);
    virtual void OnGesture(const Rotate& gesture);
    virtual void OnGesture(const Zoom& gesture);
    virtual void OnGesture(const Pan& gesture);
    virtual int WantGesture(const PressAndTap& gesture);
    virtual int WantGesture(const Tap& gesture);
    virtual int WantGesture(const Rotate& gesture);
    virtual int WantGesture(const Zoom& gesture);
    virtual int WantGesture(const Pan& gesture);

protected:
    Consumer();

private:
    std::shared_ptr<void> m_lifetime;
};

} // namespace Ostrel::App
