#include "App/Application/Gesture/Producer.h"

#include "App/Application/Gesture/Consumer.h"
#include "App/Application/Gesture/IPlatformApi.h"
#include "App/Application/Gesture/ProducerState_p.h"

namespace Ostrel::App {

namespace {

using ConfigEntry = Gesture::IPlatformApi::ConfigEntry;

// The platform's published values.
constexpr std::uint32_t GID_ZOOM = 3;
constexpr std::uint32_t GID_PAN = 4;
constexpr std::uint32_t GID_ROTATE = 5;
constexpr std::uint32_t GID_TWOFINGERTAP = 6;
constexpr std::uint32_t GID_PRESSANDTAP = 7;

constexpr std::uint32_t GC_ALLGESTURES = 1;
constexpr std::uint32_t GC_PAN = 1;
constexpr std::uint32_t GC_PAN_WITH_SINGLE_FINGER_VERTICALLY = 2;
constexpr std::uint32_t GC_PAN_WITH_SINGLE_FINGER_HORIZONTALLY = 4;
constexpr std::uint32_t GC_PAN_WITH_GUTTER = 8;
constexpr std::uint32_t GC_PAN_WITH_INERTIA = 16;

constexpr std::uint32_t GF_BEGIN = 1;
constexpr std::uint32_t GF_INERTIA = 2;
constexpr std::uint32_t GF_END = 4;

constexpr std::uint32_t GestureInfoSize = 56;
constexpr std::uint32_t ConfigEntrySize = 12;
static_assert(sizeof(ConfigEntry) == ConfigEntrySize, "the platform reads 12-byte entries");

// A consumer's pan mask. Inertia and gutter sit the other way round from the platform's bits:
// consumers speak the mask, and only the producer knows the platform's values.
constexpr int PanVertical = 2;
constexpr int PanHorizontal = 4;
constexpr int PanInertia = 8;
constexpr int PanGutter = 16;

// Everything blocked until a consumer says otherwise.
constexpr ConfigEntry InitialConfigs[5] = {
    {GID_ZOOM, 0, 1},
    {GID_PAN, 0,
     GC_PAN_WITH_SINGLE_FINGER_VERTICALLY | GC_PAN_WITH_SINGLE_FINGER_HORIZONTALLY | GC_PAN_WITH_GUTTER |
         GC_PAN_WITH_INERTIA},
    {GID_ROTATE, 0, 1},
    {GID_TWOFINGERTAP, 0, 1},
    {GID_PRESSANDTAP, 0, 1},
};

void setAllOrNone(ConfigEntry* entry, int answer)
{
    const bool yes = answer == Gesture::All;
    entry->want = yes ? 1 : 0;
    entry->block = yes ? 0 : 1;
}

void setPan(ConfigEntry* entry, int mask)
{
    const auto has = [mask](int bit) { return (mask & (Gesture::All | bit)) != 0; };
    entry->want = mask != 0 ? 1 : 0;
    entry->block = mask == 0 ? 1 : 0;
    if (has(PanVertical))
        entry->want = GC_PAN | GC_PAN_WITH_SINGLE_FINGER_VERTICALLY;
    else
        entry->block |= GC_PAN_WITH_SINGLE_FINGER_VERTICALLY;
    if (has(PanHorizontal))
        entry->want |= GC_PAN_WITH_SINGLE_FINGER_HORIZONTALLY;
    else
        entry->block |= GC_PAN_WITH_SINGLE_FINGER_HORIZONTALLY;
    if (has(PanInertia))
        entry->want |= GC_PAN_WITH_INERTIA;
    else
        entry->block |= GC_PAN_WITH_INERTIA;
    if (has(PanGutter))
        entry->want |= GC_PAN_WITH_GUTTER;
    else
        entry->block |= GC_PAN_WITH_GUTTER;
}

Gesture::IPlatformApi::Point toClient(Gesture::IPlatformApi& api, void* hwnd, std::int16_t x, std::int16_t y)
{
    // The platform's 16-bit screen values are signed: a second monitor left of the first is negative.
    Gesture::IPlatformApi::Point point = {static_cast<std::int32_t>(x), static_cast<std::int32_t>(y)};
    api.ScreenToClient(hwnd, &point);
    return point;
}

template <typename Record> Record withPosition(const Gesture& common)
{
    Record record;
    static_cast<Gesture&>(record) = common;
    return record;
}

} // namespace

Gesture::Producer::Producer()
{
    Init(IPlatformApi::system());
}

Gesture::Producer::Producer(IPlatformApi& api)
{
    Init(api);
}

Gesture::Producer::Producer(const Producer& other) = default;
Gesture::Producer& Gesture::Producer::operator=(const Producer& other) = default;

Gesture::Producer::~Producer()
{
    Fini();
}

Gesture::Consumer* Gesture::Producer::Route(const Gesture&)
{
    return nullptr;
}

Gesture::IPlatformApi& Gesture::Producer::platformApi() const
{
    return *m_state->api;
}

void Gesture::Producer::Init(IPlatformApi& api)
{
    m_state = std::make_shared<ProducerState>();
    ProducerState& state = *m_state;
    for (int i = 0; i < 5; ++i)
        state.configs[i] = InitialConfigs[i];
    state.zoomConfig = &state.configs[0];
    state.panConfig = &state.configs[1];
    state.rotateConfig = &state.configs[2];
    state.tapConfig = &state.configs[3];
    state.pressAndTapConfig = &state.configs[4];
    state.startDistance = 0.0;
    state.startAngle = 0.0;
    state.startX = 0;
    state.startY = 0;
    state.consumer.reset();
    state.api = &api;
}

void Gesture::Producer::Fini()
{
    m_state.reset();
}

bool Gesture::Producer::OnGestureNotify(void* hwnd, void*, void* lParam)
{
    ProducerState& state = *m_state;
    IPlatformApi& api = *state.api;

    std::int16_t screenX = 0;
    std::int16_t screenY = 0;
    api.readNotifyLocation(lParam, &screenX, &screenY);
    const IPlatformApi::Point client = toClient(api, hwnd, screenX, screenY);

    // Only the position means anything to the questions below.
    Gesture where;
    where.x = client.x;
    where.y = client.y;
    where.screenX = screenX;
    where.screenY = screenY;

    Consumer* consumer = Route(where);
    if (!consumer) {
        ConfigEntry blockAll = {0, 0, GC_ALLGESTURES};
        api.SetGestureConfig(hwnd, 0, 1, &blockAll, ConfigEntrySize);
        state.consumer.reset();
        return false;
    }

    setAllOrNone(state.zoomConfig, consumer->WantGesture(withPosition<Zoom>(where)));
    setPan(state.panConfig, consumer->WantGesture(withPosition<Pan>(where)));
    setAllOrNone(state.rotateConfig, consumer->WantGesture(withPosition<Rotate>(where)));
    setAllOrNone(state.tapConfig, consumer->WantGesture(withPosition<Tap>(where)));
    setAllOrNone(state.pressAndTapConfig, consumer->WantGesture(withPosition<PressAndTap>(where)));

    api.SetGestureConfig(hwnd, 0, 5, state.configs, ConfigEntrySize);
    state.consumer = consumer->weakHandle();
    return false;
}

bool Gesture::Producer::OnGesture(void* hwnd, void*, void* lParam)
{
    ProducerState& state = *m_state;
    IPlatformApi& api = *state.api;

    IPlatformApi::Info info = {};
    info.size = GestureInfoSize;
    // Not ours to close when we don't decode it: the default handling owns the handle then. A
    // receiver destroyed since the sequence began gets nothing more.
    const std::shared_ptr<Consumer> consumer = state.consumer.lock();
    if (!consumer || !api.GetGestureInfo(lParam, &info))
        return false;

    const IPlatformApi::Point client = toClient(api, hwnd, info.locationX, info.locationY);
    Gesture common;
    common.x = client.x;
    common.y = client.y;
    common.screenX = info.locationX;
    common.screenY = info.locationY;
    common.begin = (info.flags & GF_BEGIN) != 0;
    common.end = (info.flags & GF_END) != 0;

    const std::uint64_t arg = info.arguments;
    switch (info.id) {
    case GID_ZOOM: {
        const double current = static_cast<double>(static_cast<std::uint32_t>(arg));
        if (common.begin)
            state.startDistance = current;
        Zoom zoom = withPosition<Zoom>(common);
        zoom.startDistance = state.startDistance;
        zoom.distance = current;
        consumer->OnGesture(zoom);
        break;
    }
    case GID_PAN: {
        if (common.begin) {
            state.startX = common.x;
            state.startY = common.y;
        }
        Pan pan = withPosition<Pan>(common);
        pan.startX = state.startX;
        pan.startY = state.startY;
        pan.inertia = (info.flags & GF_INERTIA) != 0;
        pan.distance = static_cast<std::uint32_t>(arg);
        pan.inertiaX = static_cast<std::int16_t>(static_cast<std::uint16_t>(arg >> 32));
        pan.inertiaY = static_cast<std::int16_t>(static_cast<std::uint16_t>(arg >> 48));
        consumer->OnGesture(pan);
        break;
    }
    case GID_ROTATE: {
        // The platform packs the angle as (radians + 2 pi) / (4 pi) * 65535; these are its own
        // constants, kept literally so that angles match the platform's to the last bit.
        const double angle = static_cast<double>(arg) / 65535.0 * 4.0 * 3.14159265 - 6.2831853;
        if (common.begin)
            state.startAngle = angle;
        Rotate rotate = withPosition<Rotate>(common);
        rotate.startAngle = state.startAngle;
        rotate.angle = angle;
        consumer->OnGesture(rotate);
        break;
    }
    case GID_TWOFINGERTAP: {
        Tap tap = withPosition<Tap>(common);
        tap.distance = static_cast<std::uint32_t>(arg);
        consumer->OnGesture(tap);
        break;
    }
    case GID_PRESSANDTAP: {
        PressAndTap pressAndTap = withPosition<PressAndTap>(common);
        pressAndTap.tapX = common.x + static_cast<std::int16_t>(static_cast<std::uint16_t>(arg));
        pressAndTap.tapY = common.y + static_cast<std::int16_t>(static_cast<std::uint16_t>(arg >> 16));
        consumer->OnGesture(pressAndTap);
        break;
    }
    default:
        // GID_BEGIN, GID_END and anything newer are the default handling's.
        return false;
    }

    api.CloseGestureInfoHandle(lParam);
    return true;
}

} // namespace Ostrel::App
