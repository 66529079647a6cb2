// The sample host's own windows: a finger drags the links list, and a screen reader finds a role
// and a name on every control of the main window, its menus, All Links and the About box.

#include "GestureWiring.h"
#include "LinksPanel.h"
#include "MainWindow.h"

#include "AccessibleTree.h"
#include "FakeLinks.h"
#include "NoQuitLifetime.h"

#include <QAction>
#include <QDialog>
#include <QMenuBar>
#include <QScrollBar>
#include <QVBoxLayout>

using namespace Ostrel::App;

class TestHostView : public QObject
{
    Q_OBJECT
public:
    explicit TestHostView(const std::shared_ptr<Ostrel::Test::NoQuitLifetime>&) {}

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

    void hostWindowsNameEveryControl()
    {
        Ostrel::Test::app().SetLinksManager(std::make_shared<Ostrel::Test::FakeLinks>());
        MainWindow window(Ostrel::Test::app());
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        // All Links and About, opened from the Help menu as a user opens them.
        for (const char* entry : {"allLinks_action", "about_action"})
            window.findChild<QAction*>(QString::fromLatin1(entry))->trigger();
        const QList<QDialog*> opened = window.findChildren<QDialog*>();
        QCOMPARE(opened.size(), 2);
        for (QDialog* dialog : opened)
            QVERIFY(QTest::qWaitForWindowExposed(dialog));

        // The whole menu bar, each menu with its entries, is in the main window's tree.
        QList<QAccessibleInterface*> nodes;
        Ostrel::Test::accessibleNodes(QAccessible::queryAccessibleInterface(&window), nodes);
        const auto entries = std::count_if(nodes.begin(), nodes.end(), [](QAccessibleInterface* node) {
            return node->role() == QAccessible::MenuItem;
        });
        QVERIFY2(entries >= 2 * window.menuBar()->actions().size(), qPrintable(QString::number(entries)));
        QList<QWidget*> windows{&window};
        for (QDialog* dialog : opened)
            windows << dialog;
        for (QWidget* shown : windows) {
            const QStringList silent = Ostrel::Test::silentControls(shown);
            QVERIFY2(silent.isEmpty(), qPrintable(silent.join(QStringLiteral("; "))));
        }
    }
};

int main(int argc, char** argv)
{
    return Ostrel::Test::execInApplication<TestHostView>(argc, argv);
}
#include "tst_hostview.moc"
