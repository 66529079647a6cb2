// The application and window menus of a menu bar: which actions get shortcuts and slots when
// menus or actions are missing, and what the window slots do to the active window.

#include "App/Application/MacMenuActionHandler.h"

#include "TestEnvironment.h"

#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>

using namespace Ostrel::App;

namespace {

QAction* addNamed(QMenu* menu, const QString& name)
{
    QAction* action = menu->addAction(name);
    action->setObjectName(name);
    return action;
}

QMenu* addMenu(QMenuBar* bar, const QString& name)
{
    QMenu* menu = bar->addMenu(name);
    menu->setObjectName(name);
    return menu;
}

QAction* actionOf(const QMenuBar& bar, const QString& menu, const QString& name)
{
    const auto* found = bar.findChild<QMenu*>(menu);
    if (!found)
        return nullptr;
    const QList<QAction*> actions = found->actions();
    for (QAction* action : actions) {
        if (action->objectName() == name)
            return action;
    }
    return nullptr;
}

} // namespace

class MacMenuTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void wiring_data()
    {
        QTest::addColumn<QStringList>("appActions"); // empty: no application menu at all
        QTest::addColumn<QStringList>("windowActions");
        QTest::addColumn<QStringList>("expectedShortcuts"); // "action=shortcut", in the app menu

        const QString quit = QKeySequence(QKeySequence::Quit).toString();
        const QString prefs = QKeySequence(QKeySequence::Preferences).toString();
        const QStringList window = {QStringLiteral("actionMinimize"), QStringLiteral("actionZoom"),
                                    QStringLiteral("actionBring_all_to_Front")};
        QTest::newRow("full menus") << QStringList{QStringLiteral("action_Hide"),
                                                   QStringLiteral("action_Hide_Others"),
                                                   QStringLiteral("action_Preferences"),
                                                   QStringLiteral("action_Quit")}
                                    << window
                                    << QStringList{QStringLiteral("action_Hide=Ctrl+H"),
                                                   QStringLiteral("action_Hide_Others=Ctrl+Alt+H"),
                                                   QStringLiteral("action_Preferences=") + prefs,
                                                   QStringLiteral("action_Quit=") + quit};
        QTest::newRow("missing action skipped")
            << QStringList{QStringLiteral("action_Hide"), QStringLiteral("action_Exit")} << window
            << QStringList{QStringLiteral("action_Hide=Ctrl+H"), QStringLiteral("action_Exit=") + quit};
        QTest::newRow("last named action quits")
            << QStringList{QStringLiteral("action_Hide"), QStringLiteral("action_Preferences")} << window
            << QStringList{QStringLiteral("action_Hide=Ctrl+H"),
                           QStringLiteral("action_Preferences=") + quit};
        QTest::newRow("no application menu") << QStringList() << window << QStringList();
        QTest::newRow("window menu short of one")
            << QStringList{QStringLiteral("action_Quit")} << QStringList{QStringLiteral("actionZoom")}
            << QStringList{QStringLiteral("action_Quit=") + quit};
    }
    void wiring()
    {
        QFETCH(QStringList, appActions);
        QFETCH(QStringList, windowActions);
        QFETCH(QStringList, expectedShortcuts);
        QMenuBar bar;
        if (!appActions.isEmpty()) {
            QMenu* app = addMenu(&bar, QStringLiteral("menuMacOSMenu"));
            for (const QString& name : qAsConst(appActions))
                addNamed(app, name);
        }
        // Found recursively: the window menu sits in a submenu here.
        QMenu* holder = addMenu(&bar, QStringLiteral("menuView"));
        QMenu* windowMenu = holder->addMenu(QStringLiteral("Window"));
        windowMenu->setObjectName(QStringLiteral("menuWindow"));
        for (const QString& name : qAsConst(windowActions))
            addNamed(windowMenu, name);

        int asked = 0;
        MacMenuActionHandler handler(&bar, [&asked](QWidget*) {
            ++asked;
            return false;
        });

        QStringList shortcuts;
        for (const QString& name : qAsConst(appActions))
            shortcuts << name + QLatin1Char('=') +
                             actionOf(bar, QStringLiteral("menuMacOSMenu"), name)->shortcut().toString();
        QCOMPARE(shortcuts, expectedShortcuts);

        // The window actions are wired whatever happened to the application menu.
        for (const QString& name : qAsConst(windowActions)) {
            QAction* action = actionOf(bar, QStringLiteral("menuWindow"), name);
            QVERIFY(action->shortcut().isEmpty());
            action->trigger();
        }
        const int checked = windowActions.contains(QStringLiteral("actionMinimize")) +
                            windowActions.contains(QStringLiteral("actionZoom"));
        QCOMPARE(asked, checked);
    }

    void zoomTogglesTheActiveWindow_data()
    {
        QTest::addColumn<bool>("refuse");
        QTest::newRow("allowed") << false;
        QTest::newRow("refused") << true;
    }
    void zoomTogglesTheActiveWindow()
    {
        QFETCH(bool, refuse);
        QMainWindow window;
        QMenu* menu = addMenu(window.menuBar(), QStringLiteral("menuWindow"));
        QAction* zoom = addNamed(menu, QStringLiteral("actionZoom"));
        QAction* minimize = addNamed(menu, QStringLiteral("actionMinimize"));
        QWidget* seen = nullptr;
        new MacMenuActionHandler(window.menuBar(), [&](QWidget* widget) {
            seen = widget;
            return !refuse;
        });
        window.show();
        QApplication::setActiveWindow(&window);
        QVERIFY(QTest::qWaitForWindowActive(&window));

        zoom->trigger();
        QCOMPARE(seen, &window);
        QCOMPARE(window.isMaximized(), !refuse);
        zoom->trigger();
        QVERIFY(!window.isMaximized());
        minimize->trigger();
        QCOMPARE(window.isMinimized(), !refuse);
    }

    void emptyCheckAcceptsEveryWindow()
    {
        QMainWindow window;
        QMenu* menu = addMenu(window.menuBar(), QStringLiteral("menuWindow"));
        QAction* zoom = addNamed(menu, QStringLiteral("actionZoom"));
        new MacMenuActionHandler(window.menuBar(), {});
        window.show();
        QApplication::setActiveWindow(&window);
        QVERIFY(QTest::qWaitForWindowActive(&window));
        zoom->trigger();
        QVERIFY(window.isMaximized());
    }

    void noActiveWindowAsksAboutNullAndDoesNothing()
    {
        QMenuBar bar;
        QMenu* menu = addMenu(&bar, QStringLiteral("menuWindow"));
        QAction* zoom = addNamed(menu, QStringLiteral("actionZoom"));
        QWidget* seen = &bar;
        MacMenuActionHandler handler(&bar, [&seen](QWidget* widget) {
            seen = widget;
            return false;
        });
        QApplication::setActiveWindow(nullptr);
        zoom->trigger();
        QCOMPARE(seen, nullptr);

        // The empty function says yes to everything, null included.
        QMenuBar acceptingBar;
        menu = addMenu(&acceptingBar, QStringLiteral("menuWindow"));
        zoom = addNamed(menu, QStringLiteral("actionZoom"));
        QAction* minimize = addNamed(menu, QStringLiteral("actionMinimize"));
        MacMenuActionHandler accepting(&acceptingBar, {});
        zoom->trigger();
        minimize->trigger();
    }
};

OSTREL_TEST_MAIN(MacMenuTest)
#include "tst_macmenu.moc"
