#include "App/Application/Gesture/IPlatformApi.h"

#include <windows.h>

// The platform's calls as they are; the records are copied field by field into the neutral ones.
namespace Ostrel::App {

namespace {

static_assert(sizeof(Gesture::IPlatformApi::ConfigEntry) == sizeof(GESTURECONFIG),
              "a configuration entry must be laid out as GESTURECONFIG");

class WindowsApi final : public Gesture::IPlatformApi
{
public:
    Message readMessage(void* nativeMessage) override
    {
        const MSG* msg = static_cast<const MSG*>(nativeMessage);
        return {msg->hwnd, msg->message, reinterpret_cast<void*>(msg->wParam),
                reinterpret_cast<void*>(msg->lParam)};
    }

    void readNotifyLocation(void* notifyRecord, std::int16_t* x, std::int16_t* y) override
    {
        const GESTURENOTIFYSTRUCT* notify = static_cast<const GESTURENOTIFYSTRUCT*>(notifyRecord);
        *x = notify->ptsLocation.x;
        *y = notify->ptsLocation.y;
    }

    bool GetGestureInfo(void* handle, Info* info) override
    {
        GESTUREINFO platform = {};
        platform.cbSize = info->size;
        if (!::GetGestureInfo(static_cast<HGESTUREINFO>(handle), &platform))
            return false;
        info->flags = platform.dwFlags;
        info->id = platform.dwID;
        info->locationX = platform.ptsLocation.x;
        info->locationY = platform.ptsLocation.y;
        info->arguments = platform.ullArguments;
        return true;
    }

    bool CloseGestureInfoHandle(void* handle) override
    {
        return ::CloseGestureInfoHandle(static_cast<HGESTUREINFO>(handle)) != FALSE;
    }

    bool SetGestureConfig(void* hwnd, std::uint32_t reserved, std::uint32_t count, ConfigEntry* configs,
                          std::uint32_t entrySize) override
    {
        return ::SetGestureConfig(static_cast<HWND>(hwnd), reserved, count,
                                  reinterpret_cast<PGESTURECONFIG>(configs), entrySize) != FALSE;
    }

    bool ScreenToClient(void* hwnd, Point* point) override
    {
        POINT platform = {point->x, point->y};
        const bool done = ::ScreenToClient(static_cast<HWND>(hwnd), &platform) != FALSE;
        point->x = platform.x;
        point->y = platform.y;
        return done;
    }

    void* GetParent(void* hwnd) override { return ::GetParent(static_cast<HWND>(hwnd)); }

    std::intptr_t DefWindowProcW(void* hwnd, std::uint32_t message, void* wParam, void* lParam) override
    {
        return ::DefWindowProcW(static_cast<HWND>(hwnd), message, reinterpret_cast<WPARAM>(wParam),
                                reinterpret_cast<LPARAM>(lParam));
    }
};

} // namespace

Gesture::IPlatformApi& Gesture::IPlatformApi::system()
{
    static WindowsApi api;
    return api;
}

} // namespace Ostrel::App
