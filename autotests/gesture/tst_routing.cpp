// Who gets a gesture: the router's walk over real widgets, the window messages it takes, and the
// emitter's answers and signals. The window system is a fake; the widgets are real.

#include "App/Application/Gesture/Emitter.h"
#include "App/Application/Gesture/NativeEventFilter.h"
#include "App/Application/Gesture/Router.h"

#include "FakePlatformApi.h"
#include "TestEnvironment.h"

#include <QSignalSpy>
#include <QVBoxLayout>
#include <QWidget>

using namespace Ostrel::App;
using Ostrel::Test::FakePlatformApi;
using namespace Ostrel::Test::WindowSystem;
using Info = Gesture::IPlatformApi::Info;
using Message = Gesture::IPlatformApi::Message;

namespace {

void* const TopWindow = reinterpret_cast<void*>(0x1000);
void* const ChildWindow = reinterpret_cast<void*>(0x1001);
void* const Handle = reinterpret_cast<void*>(0x2000);

/// A shown window with an outer panel holding an inner one, side by side with a bare area.
struct Scene
{
    QWidget window;
    QWidget* outer = new QWidget(&window);
    QWidget* inner = new QWidget(outer);
    QWidget* bare = new QWidget(&window);

    Scene()
    {
        window.setGeometry(100, 100, 400, 300);
        outer->setGeometry(0, 0, 200, 300);
        inner->setGeometry(20, 20, 100, 100);
        bare->setGeometry(200, 0, 200, 300);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
    }

    static QPoint centreOf(const QWidget* widget) { return widget->mapToGlobal(widget->rect().center()); }
};

long send(Gesture::Router& router, std::uint32_t message, void* hwnd, void* lParam, bool* handled = nullptr)
{
    Message msg = {hwnd, message, nullptr, lParam};
    long result = -7;
    const bool taken = router.nativeEvent(QByteArray(), &msg, &result);
    if (handled)
        *handled = taken;
    return result;
}

void notifyAt(Gesture::Router& router, const QPoint& screen, void* hwnd = TopWindow)
{
    FakePlatformApi::NotifyRecord record = {static_cast<std::int16_t>(screen.x()),
                                            static_cast<std::int16_t>(screen.y())};
    bool handled = true;
    send(router, WM_GESTURENOTIFY, hwnd, &record, &handled);
    QVERIFY(!handled);
}

} // namespace

class RoutingTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { qRegisterMetaType<Gesture::Pan>(); }

    void nothingToAskBlocksAllGestures_data()
    {
        QTest::addColumn<bool>("overWidget");
        QTest::newRow("over no widget") << false;
        QTest::newRow("widget chain without a consumer") << true;
    }
    void nothingToAskBlocksAllGestures()
    {
        QFETCH(bool, overWidget);
        Scene scene;
        // A consumer in a sibling branch must not be found.
        new Gesture::Emitter(scene.outer);
        FakePlatformApi api;
        Gesture::Router router(nullptr, api);

        notifyAt(router, overWidget ? Scene::centreOf(scene.bare) : QPoint(5, 5));

        QCOMPARE(api.configCalls.size(), size_t(1));
        QCOMPARE(api.configCalls[0].count, 1u);
        QCOMPARE(api.configCalls[0].entries[0].block, 1u);
    }

    void nearestConsumerDecidesAlone_data()
    {
        QTest::addColumn<bool>("innerWantsPan");
        QTest::newRow("wants nothing, still stops the search") << false;
        QTest::newRow("wants pan") << true;
    }
    void nearestConsumerDecidesAlone()
    {
        QFETCH(bool, innerWantsPan);
        Scene scene;
        auto* outerEmitter = new Gesture::Emitter(scene.outer);
        outerEmitter->setZoomEnabled(true);
        outerEmitter->setVerticalPanEnabled(true);
        // Within a widget the earliest consumer child wins; a plain object before it is passed by.
        new QObject(scene.inner);
        auto* innerEmitter = new Gesture::Emitter(scene.inner);
        innerEmitter->setVerticalPanEnabled(innerWantsPan);
        auto* laterEmitter = new Gesture::Emitter(scene.inner);
        laterEmitter->setZoomEnabled(true);
        FakePlatformApi api;
        Gesture::Router router(nullptr, api);

        notifyAt(router, Scene::centreOf(scene.inner));

        QCOMPARE(api.configCalls.back().count, 5u);
        QCOMPARE(api.lastConfig(GID_ZOOM).want, 0u);
        QCOMPARE(api.lastConfig(GID_PAN).want, innerWantsPan ? 3u : 0u);

        // The gestures of the sequence go to the chosen one, whatever it said.
        QSignalSpy innerPans(innerEmitter, &Gesture::Emitter::pan);
        QSignalSpy outerPans(outerEmitter, &Gesture::Emitter::pan);
        api.gestures[Handle] = Info{0, 1, GID_PAN, 150, 150, 0};
        bool handled = false;
        QCOMPARE(send(router, WM_GESTURE, TopWindow, Handle, &handled), 0L);
        QVERIFY(handled);
        QCOMPARE(innerPans.count(), 1);
        QCOMPARE(outerPans.count(), 0);
        QCOMPARE(innerPans.at(0).at(0).value<Gesture::Pan>().screenX, 150);
    }

    void emitterAnswersFromItsSwitches()
    {
        Scene scene;
        auto* emitter = new Gesture::Emitter(scene.outer);
        emitter->setHorizontalPanEnabled(true);
        emitter->setPanGutterEnabled(true);
        emitter->setRotateEnabled(true);
        emitter->setTapEnabled(true);
        FakePlatformApi api;
        Gesture::Router router(nullptr, api);

        notifyAt(router, Scene::centreOf(scene.outer));

        // Horizontal and gutter: the mask 20, never `All`.
        QCOMPARE(api.lastConfig(GID_PAN).want, 1u | 4u | 8u);
        QCOMPARE(api.lastConfig(GID_PAN).block, 2u | 16u);
        QCOMPARE(api.lastConfig(GID_ZOOM).want, 0u);
        QCOMPARE(api.lastConfig(5).want, 1u);
        QCOMPARE(api.lastConfig(6).want, 1u);
        QCOMPARE(api.lastConfig(7).want, 0u);
    }

    void childWindowGestureGoesToDefaultHandling()
    {
        Scene scene;
        new Gesture::Emitter(scene.outer);
        FakePlatformApi api;
        api.parents[ChildWindow] = TopWindow;
        api.defWindowProcResult = 42;
        Gesture::Router router(nullptr, api);
        // A child window is configured all the same.
        notifyAt(router, Scene::centreOf(scene.outer), ChildWindow);
        QCOMPARE(api.configCalls.back().hwnd, ChildWindow);
        api.gestures[Handle] = Info{0, 1, GID_PAN, 0, 0, 0};
        api.calls.clear();

        bool handled = false;
        QCOMPARE(send(router, WM_GESTURE, ChildWindow, Handle, &handled), 42L);
        QVERIFY(handled);
        QCOMPARE(api.calls,
                 QStringList({QStringLiteral("GetParent"), QStringLiteral("DefWindowProcW(281)")}));
    }

    void messagesLeftAlone_data()
    {
        QTest::addColumn<uint>("message");
        QTest::addColumn<bool>("notified");
        QTest::newRow("another message") << 0x0200u << true;
        QTest::newRow("gesture before any notify") << WM_GESTURE << false;
    }
    void messagesLeftAlone()
    {
        QFETCH(uint, message);
        QFETCH(bool, notified);
        Scene scene;
        new Gesture::Emitter(scene.outer);
        FakePlatformApi api;
        api.gestures[Handle] = Info{0, 1, GID_PAN, 0, 0, 0};
        Gesture::Router router(nullptr, api);
        if (notified)
            notifyAt(router, Scene::centreOf(scene.outer));

        bool handled = true;
        QCOMPARE(send(router, message, TopWindow, Handle, &handled), -7L);
        QVERIFY(!handled);
        QVERIFY(api.closed.empty());
    }

    void filterForwardsToOneRouter()
    {
        Scene scene;
        auto* emitter = new Gesture::Emitter(scene.outer);
        emitter->setZoomEnabled(true);
        QSignalSpy zooms(emitter, &Gesture::Emitter::zoom);
        FakePlatformApi api;
        NativeEventFilter filter(api);

        FakePlatformApi::NotifyRecord record = {static_cast<std::int16_t>(Scene::centreOf(scene.outer).x()),
                                                static_cast<std::int16_t>(Scene::centreOf(scene.outer).y())};
        Message notify = {TopWindow, WM_GESTURENOTIFY, nullptr, &record};
        long result = -7;
        QVERIFY(!filter.nativeEventFilter(QByteArray("windows_generic_MSG"), &notify, &result));
        // The second message must meet the router that remembered the receiver.
        api.gestures[Handle] = Info{0, 1, GID_ZOOM, 0, 0, 10};
        Message gesture = {TopWindow, WM_GESTURE, nullptr, Handle};
        QVERIFY(filter.nativeEventFilter(QByteArray("windows_generic_MSG"), &gesture, &result));
        QCOMPARE(result, 0L);
        QCOMPARE(zooms.count(), 1);
        QCOMPARE(filter.findChildren<Gesture::Router*>().size(), 1);
    }
};

OSTREL_TEST_MAIN(RoutingTest)
#include "tst_routing.moc"
