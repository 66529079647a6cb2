// Feeds the gesture decoder arbitrary notify positions, flags, identifiers, locations and
// arguments through a stand-in window system, and whatever receiver answers it arbitrary masks.
//
// Input: a stream of 20-byte messages. Byte 0 picks the message (even: notify, odd: gesture);
// a notify reads its answers from bytes 1..5 (zoom, pan, rotate, tap, press-and-tap; a 0 pan
// byte with byte 6 odd means no receiver) and its position from bytes 7..10; a gesture reads
// flags (1..4), id (5), location (6..9), argument (10..17) and byte 18 odd fails the info read.

#include "App/Application/Gesture/Consumer.h"
#include "App/Application/Gesture/IPlatformApi.h"
#include "App/Application/Gesture/Producer.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>

using namespace Ostrel::App;

namespace {

class FuzzApi final : public Gesture::IPlatformApi
{
public:
    Info next = {};
    bool infoFails = false;
    int openHandles = 0;

    Message readMessage(void* nativeMessage) override { return *static_cast<Message*>(nativeMessage); }
    void readNotifyLocation(void* record, std::int16_t* x, std::int16_t* y) override
    {
        std::memcpy(x, record, 2);
        std::memcpy(y, static_cast<char*>(record) + 2, 2);
    }
    bool GetGestureInfo(void*, Info* info) override
    {
        if (info->size != 56)
            std::abort();
        if (infoFails)
            return false;
        *info = next;
        return true;
    }
    bool CloseGestureInfoHandle(void*) override
    {
        --openHandles;
        return true;
    }
    bool SetGestureConfig(void*, std::uint32_t, std::uint32_t count, ConfigEntry* configs,
                          std::uint32_t size) override
    {
        if ((count != 1 && count != 5) || size != 12)
            std::abort();
        for (std::uint32_t i = 0; i < count; ++i) {
            // Nothing may be both wanted and blocked.
            if (configs[i].want & configs[i].block)
                std::abort();
        }
        return true;
    }
    bool ScreenToClient(void*, Point* point) override
    {
        point->x -= 3;
        point->y += 5;
        return true;
    }
    void* GetParent(void*) override { return nullptr; }
    std::intptr_t DefWindowProcW(void*, std::uint32_t, void*, void*) override { return 0; }
};

class AnsweringConsumer final : public Gesture::Consumer
{
public:
    int answers[5] = {};
    volatile double sink = 0;

    void OnGesture(const Gesture::PressAndTap& g) override { sink = g.tapX + g.tapY; }
    void OnGesture(const Gesture::Tap& g) override { sink = g.distance; }
    void OnGesture(const Gesture::Rotate& g) override { sink = g.angle - g.startAngle; }
    void OnGesture(const Gesture::Zoom& g) override { sink = g.distance - g.startDistance; }
    void OnGesture(const Gesture::Pan& g) override { sink = g.inertiaX + g.inertiaY + g.startX; }
    int WantGesture(const Gesture::Zoom&) override { return answers[0]; }
    int WantGesture(const Gesture::Pan&) override { return answers[1]; }
    int WantGesture(const Gesture::Rotate&) override { return answers[2]; }
    int WantGesture(const Gesture::Tap&) override { return answers[3]; }
    int WantGesture(const Gesture::PressAndTap&) override { return answers[4]; }
};

class FuzzProducer final : public Gesture::Producer
{
public:
    FuzzProducer(FuzzApi& api, AnsweringConsumer& consumer) : Producer(api), m_consumer(consumer) {}
    bool route = true;

    Gesture::Consumer* Route(const Gesture&) override { return route ? &m_consumer : nullptr; }
    bool notify(void* record) { return OnGestureNotify(this, nullptr, record); }
    bool gesture() { return OnGesture(this, nullptr, this); }

private:
    AnsweringConsumer& m_consumer;
};

template <typename T> T read(const std::uint8_t* at)
{
    T value;
    std::memcpy(&value, at, sizeof(T));
    return value;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    FuzzApi api;
    AnsweringConsumer consumer;
    FuzzProducer producer(api, consumer);
    constexpr std::size_t Step = 20;
    for (std::size_t at = 0; at + Step <= size; at += Step) {
        const std::uint8_t* m = data + at;
        if ((m[0] & 1) == 0) {
            for (int i = 0; i < 5; ++i)
                consumer.answers[i] = static_cast<std::int8_t>(m[1 + i]);
            producer.route = !(m[2] == 0 && (m[6] & 1));
            std::uint8_t record[4];
            std::memcpy(record, m + 7, 4);
            if (producer.notify(record))
                std::abort(); // a notify always goes on to the default handling
        } else {
            api.next.flags = read<std::uint32_t>(m + 1);
            api.next.id = m[5];
            api.next.locationX = read<std::int16_t>(m + 6);
            api.next.locationY = read<std::int16_t>(m + 8);
            api.next.arguments = read<std::uint64_t>(m + 10);
            api.infoFails = m[18] & 1;
            ++api.openHandles;
            const bool consumed = producer.gesture();
            // Closed exactly when consumed; otherwise left open for the default handling.
            if (api.openHandles != (consumed ? 0 : 1))
                std::abort();
            api.openHandles = 0;
        }
    }
    return 0;
}
