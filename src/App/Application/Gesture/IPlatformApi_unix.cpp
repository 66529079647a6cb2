#include "App/Application/Gesture/IPlatformApi.h"

// No window here ever sends gesture messages, so nothing reaches these but a host that forwards
// native events all the same: every call answers "nothing to do" and the message goes on.
namespace Ostrel::App {

namespace {

class InertApi final : public Gesture::IPlatformApi
{
public:
    Message readMessage(void*) override { return {nullptr, 0, nullptr, nullptr}; }
    void readNotifyLocation(void*, std::int16_t* x, std::int16_t* y) override { *x = *y = 0; }
    bool GetGestureInfo(void*, Info*) override { return false; }
    bool CloseGestureInfoHandle(void*) override { return false; }
    bool SetGestureConfig(void*, std::uint32_t, std::uint32_t, ConfigEntry*, std::uint32_t) override
    {
        return false;
    }
    bool ScreenToClient(void*, Point*) override { return false; }
    void* GetParent(void*) override { return nullptr; }
    std::intptr_t DefWindowProcW(void*, std::uint32_t, void*, void*) override { return 0; }
};

} // namespace

Gesture::IPlatformApi& Gesture::IPlatformApi::system()
{
    static InertApi api;
    return api;
}

} // namespace Ostrel::App
