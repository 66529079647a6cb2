// Decoding one gesture message through a stand-in window system, and the heap allocations it
// makes: none is the goal, so every allocation of the program is counted.

#include "App/Application/Gesture/Consumer.h"
#include "App/Application/Gesture/IPlatformApi.h"
#include "App/Application/Gesture/Producer.h"

#include <benchmark/benchmark.h>

#include <atomic>
#include <cstdlib>
#include <new>

namespace {

std::atomic<long long> g_allocations{0};

} // namespace

void* operator new(std::size_t size)
{
    g_allocations.fetch_add(1, std::memory_order_relaxed);
    if (void* p = std::malloc(size ? size : 1))
        return p;
    throw std::bad_alloc();
}
void* operator new[](std::size_t size)
{
    return operator new(size);
}
void operator delete(void* p) noexcept
{
    std::free(p);
}
void operator delete[](void* p) noexcept
{
    std::free(p);
}
void operator delete(void* p, std::size_t) noexcept
{
    std::free(p);
}
void operator delete[](void* p, std::size_t) noexcept
{
    std::free(p);
}

namespace {

using namespace Ostrel::App;

class StubApi final : public Gesture::IPlatformApi
{
public:
    Info info = {};
    Message readMessage(void* m) override { return *static_cast<Message*>(m); }
    void readNotifyLocation(void*, std::int16_t* x, std::int16_t* y) override { *x = *y = 10; }
    bool GetGestureInfo(void*, Info* out) override
    {
        *out = info;
        return true;
    }
    bool CloseGestureInfoHandle(void*) override { return true; }
    bool SetGestureConfig(void*, std::uint32_t, std::uint32_t, ConfigEntry*, std::uint32_t) override
    {
        return true;
    }
    bool ScreenToClient(void*, Point* p) override
    {
        p->x -= 5;
        return true;
    }
    void* GetParent(void*) override { return nullptr; }
    std::intptr_t DefWindowProcW(void*, std::uint32_t, void*, void*) override { return 0; }
};

class CountingConsumer final : public Gesture::Consumer
{
public:
    long long sum = 0;
    void OnGesture(const Gesture::Pan& g) override { sum += g.x + g.inertiaX; }
    void OnGesture(const Gesture::Zoom& g) override { sum += static_cast<long long>(g.distance); }
    void OnGesture(const Gesture::Rotate& g) override { sum += static_cast<long long>(g.angle); }
    int WantGesture(const Gesture::Pan&) override { return 30; }
};

class BenchProducer final : public Gesture::Producer
{
public:
    BenchProducer(StubApi& api, CountingConsumer& consumer) : Producer(api), m_consumer(consumer) {}
    Gesture::Consumer* Route(const Gesture&) override { return &m_consumer; }
    bool notify() { return OnGestureNotify(nullptr, nullptr, nullptr); }
    bool gesture() { return OnGesture(nullptr, nullptr, this); }

private:
    CountingConsumer& m_consumer;
};

void decodeOne(benchmark::State& state, std::uint32_t id)
{
    StubApi api;
    api.info = Gesture::IPlatformApi::Info{56, 0, id, 100, 200, 0x0002FFFD00000007ull};
    CountingConsumer consumer;
    BenchProducer producer(api, consumer);
    producer.notify();

    const long long before = g_allocations.load();
    for (auto _ : state) {
        benchmark::DoNotOptimize(producer.gesture());
        benchmark::ClobberMemory();
    }
    const long long allocations = g_allocations.load() - before;
    state.counters["allocations_per_message"] =
        benchmark::Counter(static_cast<double>(allocations) / static_cast<double>(state.iterations()));
    benchmark::DoNotOptimize(consumer.sum);
}

void BM_DecodePan(benchmark::State& state)
{
    decodeOne(state, 4);
}
void BM_DecodeZoom(benchmark::State& state)
{
    decodeOne(state, 3);
}
void BM_DecodeRotate(benchmark::State& state)
{
    decodeOne(state, 5);
}

void BM_Notify(benchmark::State& state)
{
    StubApi api;
    CountingConsumer consumer;
    BenchProducer producer(api, consumer);
    const long long before = g_allocations.load();
    for (auto _ : state)
        benchmark::DoNotOptimize(producer.notify());
    state.counters["allocations_per_message"] = benchmark::Counter(
        static_cast<double>(g_allocations.load() - before) / static_cast<double>(state.iterations()));
}

} // namespace

BENCHMARK(BM_DecodePan);
BENCHMARK(BM_DecodeZoom);
BENCHMARK(BM_DecodeRotate);
BENCHMARK(BM_Notify);

BENCHMARK_MAIN();
