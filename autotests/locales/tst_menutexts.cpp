#include "MenuTexts.h"

#include "TestEnvironment.h"

#include <QAction>
#include <QMenu>
#include <QTest>
#include <QTranslator>

// The host's menus, built in one language, must follow every later switch: the Language menu
// switches at run time, and the stored locale is loaded after the menus exist.
class MenuTextsTest : public QObject
{
    Q_OBJECT

private slots:
    void followsEverySwitch()
    {
        QMenu menu;
        auto* texts = new MenuTexts(menu, "HelpMenu", "&Help");
        QAction* entry = texts->addAction("&Home Page");
        QCOMPARE(menu.title(), QStringLiteral("&Help"));

        QTranslator german;
        QVERIFY(german.load(QStringLiteral(OSTREL_BUILD_ROOT "/resources/locales/de_DE/ostrel_de_DE.qm")));
        const QString title = german.translate("HelpMenu", "&Help");
        const QString home = german.translate("HelpMenu", "&Home Page");
        QVERIFY(!title.isEmpty() && title != QStringLiteral("&Help"));
        QVERIFY(!home.isEmpty());

        QCoreApplication::installTranslator(&german);
        QTRY_COMPARE(menu.title(), title);
        QCOMPARE(entry->text(), home);

        QCoreApplication::removeTranslator(&german);
        QTRY_COMPARE(menu.title(), QStringLiteral("&Help"));
        QCOMPARE(entry->text(), QStringLiteral("&Home Page"));
    }
};

OSTREL_TEST_MAIN(MenuTextsTest)

#include "tst_menutexts.moc"
