// Scrolling by pan: item views that scroll by the pixel during a gesture and keep the end of the
// list after it, plain scroll areas, and a whole touch sequence through the touch filter.

#include "App/Application/Gesture/Scroller.h"
#include "App/Application/Gesture/TouchPanFilter.h"

#include "TestEnvironment.h"

#include <QAbstractScrollArea>
#include <QListView>
#include <QScrollBar>
#include <QStringListModel>

using namespace Ostrel::App;

namespace {

Gesture::Pan panAt(int x, int y, bool begin = false, bool end = false)
{
    Gesture::Pan pan;
    pan.x = x;
    pan.y = y;
    pan.begin = begin;
    pan.end = end;
    return pan;
}

/// A shown list of 200 rows, a few of which fit.
struct ListScene
{
    QStringListModel model;
    QListView view;

    explicit ListScene(QAbstractItemView::ScrollMode mode)
    {
        QStringList rows;
        for (int i = 0; i < 200; ++i)
            rows << QStringLiteral("Row %1 with enough text to scroll sideways as well").arg(i);
        model.setStringList(rows);
        view.setModel(&model);
        view.setVerticalScrollMode(mode);
        view.setHorizontalScrollMode(mode);
        view.setGeometry(100, 100, 160, 200);
        view.show();
        QVERIFY(QTest::qWaitForWindowExposed(&view));
    }

    QScrollBar* bar() const { return view.verticalScrollBar(); }
};

} // namespace

class ScrollerTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void asksForEveryPanAndNothingElse()
    {
        QAbstractScrollArea area;
        Gesture::Scroller scroller(&area);
        Gesture::Consumer& consumer = scroller;
        QCOMPARE(consumer.WantGesture(Gesture::Pan()), 30);
        QCOMPARE(consumer.WantGesture(Gesture::Zoom()), Gesture::None);
        QCOMPARE(consumer.WantGesture(Gesture::Rotate()), Gesture::None);
        QCOMPARE(consumer.WantGesture(Gesture::Tap()), Gesture::None);
        QCOMPARE(consumer.WantGesture(Gesture::PressAndTap()), Gesture::None);
    }

    void perItemListPannedToTheEndStaysThere()
    {
        ListScene scene(QAbstractItemView::ScrollPerItem);
        const int perItemMaximum = scene.bar()->maximum();
        Gesture::Consumer& scroller = *new Gesture::Scroller(&scene.view);

        scroller.OnGesture(panAt(50, 100, true));
        QCOMPARE(scene.view.verticalScrollMode(), QAbstractItemView::ScrollPerPixel);
        QVERIFY(scene.bar()->maximum() > perItemMaximum);
        scroller.OnGesture(panAt(50, -100000));
        QCOMPARE(scene.bar()->value(), scene.bar()->maximum());
        scroller.OnGesture(panAt(50, -100000, false, true));

        QCOMPARE(scene.view.verticalScrollMode(), QAbstractItemView::ScrollPerItem);
        QCOMPARE(scene.bar()->maximum(), perItemMaximum);
        QCOMPARE(scene.bar()->value(), perItemMaximum);
    }

    void perItemListShortOfTheEndIsNotPushedThere()
    {
        ListScene scene(QAbstractItemView::ScrollPerItem);
        Gesture::Consumer& scroller = *new Gesture::Scroller(&scene.view);
        scroller.OnGesture(panAt(50, 100, true));
        scroller.OnGesture(panAt(50, 0));
        QCOMPARE(scene.bar()->value(), 100);
        scroller.OnGesture(panAt(50, 0, false, true));

        QVERIFY(scene.bar()->value() > 0);
        QVERIFY(scene.bar()->value() < scene.bar()->maximum());
    }

    void perPixelListKeepsItsModeAndPosition()
    {
        ListScene scene(QAbstractItemView::ScrollPerPixel);
        const int maximum = scene.bar()->maximum();
        Gesture::Consumer& scroller = *new Gesture::Scroller(&scene.view);
        scroller.OnGesture(panAt(50, 100, true));
        scroller.OnGesture(panAt(50, 0));
        scroller.OnGesture(panAt(50, 0, false, true));

        QCOMPARE(scene.view.verticalScrollMode(), QAbstractItemView::ScrollPerPixel);
        QCOMPARE(scene.view.horizontalScrollMode(), QAbstractItemView::ScrollPerPixel);
        QCOMPARE(scene.bar()->maximum(), maximum);
        QCOMPARE(scene.bar()->value(), 100);
    }

    void beginAndEndTogetherMoveNothing()
    {
        ListScene scene(QAbstractItemView::ScrollPerItem);
        scene.bar()->setValue(5);
        Gesture::Consumer& scroller = *new Gesture::Scroller(&scene.view);

        scroller.OnGesture(panAt(10, 300, true, true));
        QCOMPARE(scene.view.verticalScrollMode(), QAbstractItemView::ScrollPerItem);
        QCOMPARE(scene.view.horizontalScrollMode(), QAbstractItemView::ScrollPerItem);
        QCOMPARE(scene.bar()->value(), 5);

        // ... but the position is remembered: the next move is measured from it.
        scroller.OnGesture(panAt(10, 298));
        QCOMPARE(scene.bar()->value(), 7);
    }

    void plainScrollAreaFollowsTheFinger()
    {
        QAbstractScrollArea area;
        area.horizontalScrollBar()->setRange(0, 1000);
        area.verticalScrollBar()->setRange(0, 1000);
        area.verticalScrollBar()->setValue(500);
        Gesture::Consumer& scroller = *new Gesture::Scroller(&area);

        scroller.OnGesture(panAt(100, 100, true));
        scroller.OnGesture(panAt(90, 130)); // finger left and down: content right, view up
        QCOMPARE(area.horizontalScrollBar()->value(), 10);
        QCOMPARE(area.verticalScrollBar()->value(), 470);
        scroller.OnGesture(panAt(200, 0)); // clamped by the bars
        QCOMPARE(area.horizontalScrollBar()->value(), 0);
        QCOMPARE(area.verticalScrollBar()->value(), 600);
        scroller.OnGesture(panAt(200, 0, false, true));
        QCOMPARE(area.verticalScrollBar()->value(), 600);
    }

    void touchSequenceScrollsTheList()
    {
        ListScene scene(QAbstractItemView::ScrollPerPixel);
        new Gesture::Scroller(&scene.view);
        Gesture::TouchPanFilter filter;
        qApp->installEventFilter(&filter);
        QTouchDevice* screen = QTest::createTouchDevice();
        QWidget* viewport = scene.view.viewport();

        QTest::touchEvent(viewport, screen).press(0, QPoint(60, 150), viewport);
        QTest::touchEvent(viewport, screen).move(0, QPoint(60, 120), viewport);
        QTest::touchEvent(viewport, screen).move(0, QPoint(40, 60), viewport);
        QCOMPARE(scene.bar()->value(), 90);
        QCOMPARE(scene.view.horizontalScrollBar()->value(), 20);
        QTest::touchEvent(viewport, screen).release(0, QPoint(40, 60), viewport);
        QCOMPARE(scene.bar()->value(), 90);

        // A second finger ends the pan: what it does is no longer ours.
        QTest::touchEvent(viewport, screen).press(0, QPoint(60, 150), viewport);
        QTest::touchEvent(viewport, screen).move(0, QPoint(60, 140), viewport);
        QCOMPARE(scene.bar()->value(), 100);
        QTest::touchEvent(viewport, screen).stationary(0).press(1, QPoint(90, 90), viewport);
        QTest::touchEvent(viewport, screen).move(0, QPoint(60, 40), viewport).stationary(1);
        QCOMPARE(scene.bar()->value(), 100);
        QTest::touchEvent(viewport, screen)
            .release(0, QPoint(60, 40), viewport)
            .release(1, QPoint(90, 90), viewport);
        qApp->removeEventFilter(&filter);
    }

    void touchWithoutConsumerIsLeftToQt()
    {
        ListScene scene(QAbstractItemView::ScrollPerPixel);
        Gesture::TouchPanFilter filter;
        qApp->installEventFilter(&filter);
        QTouchDevice* screen = QTest::createTouchDevice();
        QWidget* viewport = scene.view.viewport();
        // A widget that takes touches itself must still get them.
        viewport->setAttribute(Qt::WA_AcceptTouchEvents);
        struct TouchCounter : QObject
        {
            int touches = 0;
            bool eventFilter(QObject*, QEvent* event) override
            {
                touches += event->type() == QEvent::TouchBegin;
                return false;
            }
        } counter;
        viewport->installEventFilter(&counter);

        QTest::touchEvent(viewport, screen).press(0, QPoint(60, 150), viewport);
        QTest::touchEvent(viewport, screen).release(0, QPoint(60, 100), viewport);
        QCOMPARE(counter.touches, 1);
        QCOMPARE(scene.bar()->value(), 0);
        qApp->removeEventFilter(&filter);
    }
};

OSTREL_TEST_MAIN(ScrollerTest)
#include "tst_scroller.moc"
