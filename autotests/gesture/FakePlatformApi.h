#pragma once

#include "App/Application/Gesture/IPlatformApi.h"

#include <QString>
#include <QStringList>

#include <map>
#include <vector>

namespace Ostrel::Test {

/// The window system's own numbers, as its messages and gesture records carry them.
namespace WindowSystem {
inline constexpr std::uint32_t WM_GESTURE = 0x119;
inline constexpr std::uint32_t WM_GESTURENOTIFY = 0x11A;
inline constexpr std::uint32_t GID_BEGIN = 1;
inline constexpr std::uint32_t GID_ZOOM = 3;
inline constexpr std::uint32_t GID_PAN = 4;
inline constexpr std::uint32_t GID_ROTATE = 5;
inline constexpr std::uint32_t GID_TWOFINGERTAP = 6;
inline constexpr std::uint32_t GID_PRESSANDTAP = 7;
inline constexpr std::uint32_t GF_BEGIN = 1, GF_INERTIA = 2, GF_END = 4;
} // namespace WindowSystem

/// Stands in for the window system: records every call with its arguments, answers from what the
/// test put in. Native messages and notify records are the structs below, and gesture handles are
/// keys of `gestures`.
class FakePlatformApi : public Ostrel::App::Gesture::IPlatformApi
{
public:
    struct NotifyRecord
    {
        std::int16_t x;
        std::int16_t y;
    };

    struct ConfigCall
    {
        void* hwnd;
        std::uint32_t reserved;
        std::uint32_t count;
        std::uint32_t entrySize;
        std::vector<ConfigEntry> entries;
    };

    QStringList calls;
    std::vector<ConfigCall> configCalls;
    std::vector<std::uint32_t> infoSizes;
    std::vector<void*> closed;

    std::map<void*, Info> gestures; // a handle missing here fails GetGestureInfo
    Point clientOrigin = {0, 0};    // ScreenToClient subtracts it
    std::map<void*, void*> parents; // child window -> parent
    std::intptr_t defWindowProcResult = 0;

    Message readMessage(void* nativeMessage) override { return *static_cast<Message*>(nativeMessage); }

    void readNotifyLocation(void* notifyRecord, std::int16_t* x, std::int16_t* y) override
    {
        const auto* record = static_cast<NotifyRecord*>(notifyRecord);
        *x = record->x;
        *y = record->y;
    }

    bool GetGestureInfo(void* handle, Info* info) override
    {
        calls << QStringLiteral("GetGestureInfo");
        infoSizes.push_back(info->size);
        const auto found = gestures.find(handle);
        if (found == gestures.end())
            return false;
        const std::uint32_t size = info->size;
        *info = found->second;
        info->size = size;
        return true;
    }

    bool CloseGestureInfoHandle(void* handle) override
    {
        calls << QStringLiteral("CloseGestureInfoHandle");
        closed.push_back(handle);
        return true;
    }

    bool SetGestureConfig(void* hwnd, std::uint32_t reserved, std::uint32_t count, ConfigEntry* configs,
                          std::uint32_t entrySize) override
    {
        calls << QStringLiteral("SetGestureConfig");
        configCalls.push_back(
            {hwnd, reserved, count, entrySize, std::vector<ConfigEntry>(configs, configs + count)});
        return true;
    }

    bool ScreenToClient(void* hwnd, Point* point) override
    {
        calls << QStringLiteral("ScreenToClient(%1,%2)").arg(point->x).arg(point->y);
        point->x -= clientOrigin.x;
        point->y -= clientOrigin.y;
        return true;
    }

    void* GetParent(void* hwnd) override
    {
        calls << QStringLiteral("GetParent");
        const auto found = parents.find(hwnd);
        return found == parents.end() ? nullptr : found->second;
    }

    std::intptr_t DefWindowProcW(void* hwnd, std::uint32_t message, void* wParam, void* lParam) override
    {
        calls << QStringLiteral("DefWindowProcW(%1)").arg(message);
        return defWindowProcResult;
    }

    const ConfigEntry& lastConfig(std::uint32_t id) const
    {
        for (const ConfigEntry& entry : configCalls.back().entries) {
            if (entry.id == id)
                return entry;
        }
        static const ConfigEntry missing = {~0u, ~0u, ~0u};
        return missing;
    }
};

} // namespace Ostrel::Test
