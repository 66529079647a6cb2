#pragma once

#include "App/Application/ostrel_app_export.h"

#include <cstdint>

namespace Ostrel::App {

/// A touch gesture at one point, and the scope of everything the touch layer has: the five records
/// below extend it, the receivers (`Consumer`) and the decoder (`Producer`) are declared in it.
///
/// Positions are whole pixels: `x`, `y` in the client coordinates of the window that got the
/// gesture, `screenX`, `screenY` in screen coordinates.
struct OSTREL_APP_EXPORT Gesture
{
    /// Answers of `Consumer::WantGesture`: only `All` means yes.
    static const int All;
    static const int None;

    struct Pan;
    struct Zoom;
    struct Rotate;
    struct Tap;
    struct PressAndTap;

    class Consumer;
    class Producer;
    class IPlatformApi;
    class Router;
    class Emitter;
    class Scroller;
    class TouchPanFilter;

    std::int32_t x = 0;
    std::int32_t y = 0;
    std::int32_t screenX = 0;
    std::int32_t screenY = 0;
    bool begin = false;
    bool end = false;
};

/// A finger moving. `startX`, `startY` is where the pan began (client coordinates); the inertia
/// vector and `inertia` are the platform's own, set while the content coasts after the finger left.
struct Gesture::Pan : Gesture
{
    std::int32_t startX = 0;
    std::int32_t startY = 0;
    std::int32_t inertiaX = 0;
    std::int32_t inertiaY = 0;
    bool inertia = false;
    std::uint32_t distance = 0;
};

/// Two fingers apart or together; distances in pixels.
struct Gesture::Zoom : Gesture
{
    double startDistance = 0.0;
    double distance = 0.0;
};

/// Two fingers turning; angles in radians.
struct Gesture::Rotate : Gesture
{
    double startAngle = 0.0;
    double angle = 0.0;
};

/// Two fingers touching at once; `distance` between them in pixels.
struct Gesture::Tap : Gesture
{
    std::uint32_t distance = 0;
};

/// One finger held while a second one taps at `tapX`, `tapY` (client coordinates).
struct Gesture::PressAndTap : Gesture
{
    std::int32_t tapX = 0;
    std::int32_t tapY = 0;
};

} // namespace Ostrel::App
