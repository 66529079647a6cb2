#pragma once

#include "App/Application/Gesture/Gesture.h"

#include <memory>

namespace Ostrel::App {

struct ProducerState;

/// Decodes a window's gesture messages and hands each gesture to the one `Consumer` that
/// `Route` chose when the touch sequence began. It owns the window's gesture configuration and
/// remembers where the current zoom, rotation and pan began.
///
/// Copies share their state (configuration, start values, chosen receiver) with the original.
///
/// The chosen receiver is held weakly (`Consumer::weakHandle`): one destroyed in the middle of a
/// touch sequence gets nothing more, and its gestures go to the default handling. (A deliberate
/// departure, for safety: a plain pointer would be read after the receiver is gone.)
class OSTREL_APP_EXPORT Gesture::Producer
{
public:
    /// Speaks to the window system through `IPlatformApi::system()`.
    Producer();
    /// Speaks to the window system through `api`, which must outlive the producer and its copies.
    explicit Producer(IPlatformApi& api);
    Producer(const Producer& other);
    Producer& operator=(const Producer& other);
    virtual ~Producer();

    /// The receiver of the gestures at the position of `gesture` (only its positions have meaning);
    /// null for none.
    virtual Consumer* Route(const Gesture& gesture);

protected:
    /// WM_GESTURENOTIFY: `lParam` points at the notify record. Always false, so that the message
    /// goes on to the default handling.
    bool OnGestureNotify(void* hwnd, void* wParam, void* lParam);
    /// WM_GESTURE: `lParam` is the gesture info handle. True when the gesture was consumed (the
    /// handle is then closed); otherwise the handle is left to the default handling.
    bool OnGesture(void* hwnd, void* wParam, void* lParam);

    IPlatformApi& platformApi() const;

private:
    void Init(IPlatformApi& api);
    void Fini();

    std::shared_ptr<ProducerState> m_state;
};

} // namespace Ostrel::App
