#pragma once

#include "App/Application/Gesture/Gesture.h"

#include <cstdint>

namespace Ostrel::App {

/// The window system's gesture calls, narrowed to what the decoder and the router need, so that
/// the decoding is plain arithmetic that runs (and is tested) anywhere. On Windows the calls are
/// the platform's own; elsewhere the system's instance is inert (no window ever sends a gesture
/// message there: touch screens deliver QTouchEvents, see `TouchPanFilter`).
class OSTREL_APP_EXPORT Gesture::IPlatformApi
{
public:
    /// One entry of a window's gesture configuration, laid out as the platform's GESTURECONFIG.
    struct ConfigEntry
    {
        std::uint32_t id;
        std::uint32_t want;
        std::uint32_t block;
    };

    /// What the decoder reads of the platform's GESTUREINFO. `size` is the record size the
    /// platform is told; `locationX`, `locationY` are its 16-bit screen position.
    struct Info
    {
        std::uint32_t size;
        std::uint32_t flags;
        std::uint32_t id;
        std::int16_t locationX;
        std::int16_t locationY;
        std::uint64_t arguments;
    };

    struct Point
    {
        std::int32_t x;
        std::int32_t y;
    };

    /// The four words of a window message.
    struct Message
    {
        void* hwnd;
        std::uint32_t message;
        void* wParam;
        void* lParam;
    };

    /// The platform's own instance; lives as long as the process.
    static IPlatformApi& system();

    virtual ~IPlatformApi();

    /// Reads the window message that a native event carries.
    virtual Message readMessage(void* nativeMessage) = 0;
    /// The 16-bit screen position in the notify record that `lParam` of WM_GESTURENOTIFY points at.
    virtual void readNotifyLocation(void* notifyRecord, std::int16_t* x, std::int16_t* y) = 0;

    virtual bool GetGestureInfo(void* handle, Info* info) = 0;
    virtual bool CloseGestureInfoHandle(void* handle) = 0;
    virtual bool SetGestureConfig(void* hwnd, std::uint32_t reserved, std::uint32_t count,
                                  ConfigEntry* configs, std::uint32_t entrySize) = 0;
    virtual bool ScreenToClient(void* hwnd, Point* point) = 0;
    virtual void* GetParent(void* hwnd) = 0;
    virtual std::intptr_t DefWindowProcW(void* hwnd, std::uint32_t message, void* wParam, void* lParam) = 0;
};

} // namespace Ostrel::App
