// The decoder through a fake window system: the window's configuration from the receiver's
// answers, the records made of gesture messages, and who owns the gesture handle.

#include "App/Application/Gesture/Consumer.h"
#include "App/Application/Gesture/Producer.h"

#include "FakePlatformApi.h"
#include "TestEnvironment.h"

#include <memory>

using namespace Ostrel::App;
using Ostrel::Test::FakePlatformApi;
using namespace Ostrel::Test::WindowSystem;
using Info = Gesture::IPlatformApi::Info;

namespace {

void* const Window = reinterpret_cast<void*>(0x1000);
void* const Handle = reinterpret_cast<void*>(0x2000);

/// Answers as told and writes down what it was asked and given.
class ScriptedConsumer : public Gesture::Consumer
{
public:
    int zoom = Gesture::None, pan = Gesture::None, rotate = Gesture::None, tap = Gesture::None,
        pressAndTap = Gesture::None;
    QStringList asked;
    std::vector<Gesture> askedAt;
    std::vector<Gesture::Pan> pans;
    std::vector<Gesture::Zoom> zooms;
    std::vector<Gesture::Rotate> rotates;
    std::vector<Gesture::Tap> taps;
    std::vector<Gesture::PressAndTap> pressAndTaps;

    void OnGesture(const Gesture::PressAndTap& g) override { pressAndTaps.push_back(g); }
    void OnGesture(const Gesture::Tap& g) override { taps.push_back(g); }
    void OnGesture(const Gesture::Rotate& g) override { rotates.push_back(g); }
    void OnGesture(const Gesture::Zoom& g) override { zooms.push_back(g); }
    void OnGesture(const Gesture::Pan& g) override { pans.push_back(g); }
    int WantGesture(const Gesture::PressAndTap& g) override
    {
        return ask(QStringLiteral("PressAndTap"), g, pressAndTap);
    }
    int WantGesture(const Gesture::Tap& g) override { return ask(QStringLiteral("Tap"), g, tap); }
    int WantGesture(const Gesture::Rotate& g) override { return ask(QStringLiteral("Rotate"), g, rotate); }
    int WantGesture(const Gesture::Zoom& g) override { return ask(QStringLiteral("Zoom"), g, zoom); }
    int WantGesture(const Gesture::Pan& g) override { return ask(QStringLiteral("Pan"), g, pan); }

private:
    int ask(const QString& what, const Gesture& at, int answer)
    {
        asked << what;
        askedAt.push_back(at);
        return answer;
    }
};

class TestProducer : public Gesture::Producer
{
public:
    explicit TestProducer(FakePlatformApi& api) : Producer(api) {}

    Gesture::Consumer* consumer = nullptr;
    std::vector<Gesture> routed;

    Gesture::Consumer* Route(const Gesture& g) override
    {
        routed.push_back(g);
        return consumer;
    }

    bool notify(std::int16_t x, std::int16_t y)
    {
        FakePlatformApi::NotifyRecord record = {x, y};
        return OnGestureNotify(Window, nullptr, &record);
    }
    bool gesture(void* handle = Handle) { return OnGesture(Window, nullptr, handle); }
};

} // namespace

class ProducerTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void panMaskConfiguresThePan_data()
    {
        QTest::addColumn<int>("mask");
        QTest::addColumn<uint>("want");
        QTest::addColumn<uint>("block");
        // Inertia (mask 8) is the platform's 16 and gutter (mask 16) the platform's 8.
        QTest::newRow("none") << 0 << 0u << 31u;
        QTest::newRow("all") << 1 << 31u << 0u;
        QTest::newRow("vertical") << 2 << 3u << 28u;
        QTest::newRow("horizontal") << 4 << 5u << 26u;
        QTest::newRow("inertia") << 8 << 17u << 14u;
        QTest::newRow("gutter") << 16 << 9u << 22u;
        QTest::newRow("both directions") << 6 << 7u << 24u;
        QTest::newRow("what a scroller asks") << 30 << 31u << 0u;
        QTest::newRow("all and more") << 31 << 31u << 0u;
    }
    void panMaskConfiguresThePan()
    {
        QFETCH(int, mask);
        QFETCH(uint, want);
        QFETCH(uint, block);
        FakePlatformApi api;
        ScriptedConsumer consumer;
        consumer.pan = mask;
        TestProducer producer(api);
        producer.consumer = &consumer;

        // A second notify with the same answer must give the same entry: the want and block words
        // are replaced, not added to.
        QVERIFY(!producer.notify(10, 10));
        QVERIFY(!producer.notify(10, 10));

        const auto& call = api.configCalls.back();
        QCOMPARE(call.hwnd, Window);
        QCOMPARE(call.reserved, 0u);
        QCOMPARE(call.count, 5u);
        QCOMPARE(call.entrySize, 12u);
        QCOMPARE(call.entries[1].id, GID_PAN);
        QCOMPARE(call.entries[1].want, want);
        QCOMPARE(call.entries[1].block, block);
    }

    void onlyOneMeansYes_data()
    {
        QTest::addColumn<int>("answer");
        QTest::addColumn<uint>("want");
        QTest::addColumn<uint>("block");
        QTest::newRow("none") << 0 << 0u << 1u;
        QTest::newRow("all") << 1 << 1u << 0u;
        QTest::newRow("two") << 2 << 0u << 1u;
        QTest::newRow("negative") << -1 << 0u << 1u;
    }
    void onlyOneMeansYes()
    {
        QFETCH(int, answer);
        QFETCH(uint, want);
        QFETCH(uint, block);
        FakePlatformApi api;
        ScriptedConsumer consumer;
        consumer.zoom = consumer.rotate = consumer.tap = consumer.pressAndTap = answer;
        TestProducer producer(api);
        producer.consumer = &consumer;
        producer.notify(0, 0);

        const auto& entries = api.configCalls.back().entries;
        const std::uint32_t order[] = {GID_ZOOM, GID_PAN, GID_ROTATE, GID_TWOFINGERTAP, GID_PRESSANDTAP};
        for (int i = 0; i < 5; ++i)
            QCOMPARE(entries[i].id, order[i]);
        for (int i : {0, 2, 3, 4}) {
            QCOMPARE(entries[i].want, want);
            QCOMPARE(entries[i].block, block);
        }
    }

    void notifyAsksInOrderAtTheWidenedPosition()
    {
        FakePlatformApi api;
        api.clientOrigin = {100, 50};
        ScriptedConsumer consumer;
        TestProducer producer(api);
        producer.consumer = &consumer;

        // 0xFFFB is -5: a screen left of the primary one.
        producer.notify(static_cast<std::int16_t>(0xFFFB), 300);

        QCOMPARE(api.calls,
                 QStringList({QStringLiteral("ScreenToClient(-5,300)"), QStringLiteral("SetGestureConfig")}));
        QCOMPARE(consumer.asked,
                 QStringList({QStringLiteral("Zoom"), QStringLiteral("Pan"), QStringLiteral("Rotate"),
                              QStringLiteral("Tap"), QStringLiteral("PressAndTap")}));
        QCOMPARE(producer.routed.size(), size_t(1));
        for (const Gesture& at : consumer.askedAt) {
            QCOMPARE(at.x, -105);
            QCOMPARE(at.y, 250);
            QCOMPARE(at.screenX, -5);
            QCOMPARE(at.screenY, 300);
        }
    }

    void noReceiverBlocksEverythingAndPassesGesturesOn()
    {
        FakePlatformApi api;
        ScriptedConsumer consumer;
        consumer.pan = Gesture::All;
        TestProducer producer(api);
        api.gestures[Handle] = Info{0, GF_BEGIN, GID_PAN, 0, 0, 0};

        // First a receiver, then a touch where there is none: the old receiver must not get
        // the gestures of the new sequence.
        producer.consumer = &consumer;
        producer.notify(1, 1);
        producer.consumer = nullptr;
        producer.notify(2, 2);

        const auto& call = api.configCalls.back();
        QCOMPARE(call.count, 1u);
        QCOMPARE(call.entrySize, 12u);
        QCOMPARE(call.entries[0].id, 0u);
        QCOMPARE(call.entries[0].want, 0u);
        QCOMPARE(call.entries[0].block, 1u);

        api.calls.clear();
        QVERIFY(!producer.gesture());
        QVERIFY(api.calls.isEmpty());
        QVERIFY(consumer.pans.empty());
    }

    void gestureLeftToDefaultHandling_data()
    {
        QTest::addColumn<bool>("notified");
        QTest::addColumn<bool>("infoAvailable");
        QTest::addColumn<uint>("id");
        QTest::addColumn<bool>("receiverGone"); // destroyed between the notify and the gesture
        QTest::newRow("no notify before") << false << true << uint(GID_PAN) << false;
        QTest::newRow("info unreadable") << true << false << uint(GID_PAN) << false;
        QTest::newRow("GID_BEGIN") << true << true << uint(GID_BEGIN) << false;
        QTest::newRow("unknown id") << true << true << 99u << false;
        QTest::newRow("receiver destroyed mid sequence") << true << true << uint(GID_PAN) << true;
    }
    void gestureLeftToDefaultHandling()
    {
        QFETCH(bool, notified);
        QFETCH(bool, infoAvailable);
        QFETCH(uint, id);
        QFETCH(bool, receiverGone);
        FakePlatformApi api;
        auto consumer = std::make_unique<ScriptedConsumer>();
        TestProducer producer(api);
        producer.consumer = consumer.get();
        if (notified)
            producer.notify(0, 0);
        if (infoAvailable)
            api.gestures[Handle] = Info{0, GF_BEGIN | GF_END, id, 0, 0, 7};
        if (receiverGone)
            consumer.reset();

        QVERIFY(!producer.gesture());
        QVERIFY(api.closed.empty());
        QCOMPARE(api.calls.contains(QStringLiteral("GetGestureInfo")), notified && !receiverGone);
        QVERIFY(!consumer || consumer->pans.empty());
    }

    void consumedGestureClosesItsHandle()
    {
        FakePlatformApi api;
        ScriptedConsumer consumer;
        TestProducer producer(api);
        producer.consumer = &consumer;
        producer.notify(0, 0);
        api.gestures[Handle] = Info{0, 0, GID_TWOFINGERTAP, 10, 20, 0x1234567800000042ull};

        QVERIFY(producer.gesture());
        QCOMPARE(api.infoSizes, std::vector<std::uint32_t>({56u}));
        QCOMPARE(api.closed, std::vector<void*>({Handle}));
        QCOMPARE(consumer.taps.size(), size_t(1));
        QCOMPARE(consumer.taps[0].distance, 0x42u);
    }

    void panRecords()
    {
        FakePlatformApi api;
        api.clientOrigin = {10, 10};
        ScriptedConsumer consumer;
        TestProducer producer(api);
        producer.consumer = &consumer;
        producer.notify(0, 0);

        // A pan without a begin reports where the last one began: nowhere yet.
        api.gestures[Handle] = Info{0, 0, GID_PAN, 50, 60, 0};
        producer.gesture();
        // inertia x = -3 (0xFFFD), y = 2, distance 7; location -2 (0xFFFE) widened.
        api.gestures[Handle] =
            Info{0, GF_BEGIN, GID_PAN, static_cast<std::int16_t>(0xFFFE), 40, 0x0002FFFD00000007ull};
        producer.gesture();
        api.gestures[Handle] = Info{0, GF_INERTIA | GF_END, GID_PAN, 70, 80, 0x8000000000000000ull};
        producer.gesture();

        QCOMPARE(consumer.pans.size(), size_t(3));
        const Gesture::Pan& orphan = consumer.pans[0];
        QCOMPARE(std::make_pair(orphan.startX, orphan.startY), std::make_pair(0, 0));
        QCOMPARE(std::make_pair(orphan.x, orphan.y), std::make_pair(40, 50));
        QVERIFY(!orphan.begin && !orphan.end && !orphan.inertia);

        const Gesture::Pan& begin = consumer.pans[1];
        QVERIFY(begin.begin && !begin.end);
        QCOMPARE(begin.screenX, -2);
        QCOMPARE(std::make_pair(begin.x, begin.y), std::make_pair(-12, 30));
        QCOMPARE(std::make_pair(begin.startX, begin.startY), std::make_pair(-12, 30));
        QCOMPARE(begin.distance, 7u);
        QCOMPARE(std::make_pair(begin.inertiaX, begin.inertiaY), std::make_pair(-3, 2));

        const Gesture::Pan& end = consumer.pans[2];
        QVERIFY(end.end && end.inertia && !end.begin);
        QCOMPARE(std::make_pair(end.startX, end.startY), std::make_pair(-12, 30));
        QCOMPARE(end.inertiaY, -32768);
    }

    void zoomAndRotateKeepTheirStart()
    {
        FakePlatformApi api;
        ScriptedConsumer consumer;
        TestProducer producer(api);
        producer.consumer = &consumer;
        producer.notify(0, 0);

        // Only the low 32 bits of a zoom's argument are its distance.
        api.gestures[Handle] = Info{0, GF_BEGIN, GID_ZOOM, 0, 0, 0xFFFFFFFF00000064ull};
        producer.gesture();
        api.gestures[Handle] = Info{0, 0, GID_ZOOM, 0, 0, 150};
        producer.gesture();
        QCOMPARE(consumer.zooms[1].startDistance, 100.0);
        QCOMPARE(consumer.zooms[1].distance, 150.0);

        api.gestures[Handle] = Info{0, GF_BEGIN, GID_ROTATE, 0, 0, 0};
        producer.gesture();
        api.gestures[Handle] = Info{0, 0, GID_ROTATE, 0, 0, 32768};
        producer.gesture();
        QCOMPARE(consumer.rotates[0].angle, -6.2831853);
        QCOMPARE(consumer.rotates[1].startAngle, -6.2831853);
        QCOMPARE(consumer.rotates[1].angle, 32768.0 / 65535.0 * 4.0 * 3.14159265 - 6.2831853);
    }

    void pressAndTapOffsets_data()
    {
        QTest::addColumn<qulonglong>("arg");
        QTest::addColumn<int>("tapX");
        QTest::addColumn<int>("tapY");
        QTest::newRow("one to the left") << qulonglong(0xFFFF) << 99 << 200;
        QTest::newRow("right and up") << qulonglong(0xFFF60005) << 105 << 190;
        QTest::newRow("high words ignored") << qulonglong(0xABCD000000010001) << 101 << 201;
    }
    void pressAndTapOffsets()
    {
        QFETCH(qulonglong, arg);
        QFETCH(int, tapX);
        QFETCH(int, tapY);
        FakePlatformApi api;
        ScriptedConsumer consumer;
        TestProducer producer(api);
        producer.consumer = &consumer;
        producer.notify(0, 0);
        api.gestures[Handle] = Info{0, 0, GID_PRESSANDTAP, 100, 200, arg};

        QVERIFY(producer.gesture());
        QCOMPARE(consumer.pressAndTaps.at(0).tapX, tapX);
        QCOMPARE(consumer.pressAndTaps.at(0).tapY, tapY);
    }

    void copiesShareTheChosenReceiver()
    {
        FakePlatformApi api;
        ScriptedConsumer consumer;
        TestProducer producer(api);
        producer.consumer = &consumer;
        Gesture::Producer copy(producer);
        producer.notify(0, 0);

        // The copy decodes for the receiver the original chose.
        api.gestures[Handle] = Info{0, 0, GID_TWOFINGERTAP, 0, 0, 3};
        struct Exposed : Gesture::Producer
        {
            using Producer::Producer;
            bool gesture(void* h) { return OnGesture(Window, nullptr, h); }
        };
        Exposed exposed(api);
        static_cast<Gesture::Producer&>(exposed) = copy;
        QVERIFY(exposed.gesture(Handle));
        QCOMPARE(consumer.taps.size(), size_t(1));
    }
};

OSTREL_TEST_MAIN(ProducerTest)
#include "tst_producer.moc"
