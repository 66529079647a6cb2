// The sample host's touch wiring on its own scrollable view: a finger drags the links list.

#include "GestureWiring.h"
#include "LinksPanel.h"

#include "TestEnvironment.h"

#include <QScrollBar>
#include <QVBoxLayout>

using namespace Ostrel::App;

class TestHostView : public QObject
{
    Q_OBJECT

private slots:
    void touchPanScrollsTheLinks()
    {
        QWidget window;
        auto* layout = new QVBoxLayout(&window);
        auto* panel = new LinksPanel({}, {}, &window);
        layout->addWidget(panel);
        new GestureWiring(&window);
        window.resize(320, 200);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        QTreeWidgetItem* firstShown = panel->itemAt(4, 4);
        QCOMPARE(firstShown, panel->topLevelItem(0));

        QWidget* viewport = panel->viewport();
        QTouchDevice* screen = QTest::createTouchDevice();
        QTest::touchEvent(viewport, screen).press(0, QPoint(60, 150), viewport);
        QTest::touchEvent(viewport, screen).move(0, QPoint(60, 110), viewport);
        QTest::touchEvent(viewport, screen).move(0, QPoint(60, 20), viewport);
        QTest::touchEvent(viewport, screen).release(0, QPoint(60, 20), viewport);

        // The list scrolled by the finger's way up, as far as its own item steps allow.
        QVERIFY(panel->verticalScrollBar()->value() > 0);
        QVERIFY(panel->itemAt(4, 4) != firstShown);
    }
};

OSTREL_TEST_MAIN(TestHostView)
#include "tst_hostview.moc"
