#include "MenuTexts.h"

#include "TestEnvironment.h"

#include <QAction>
#include <QDir>
#include <QFile>
#include <QMenu>
#include <QRegularExpression>
#include <QTest>
#include <QTranslator>
#include <QXmlStreamReader>

#include <map>

namespace {

// The menus' texts by context, as the sources mark them: "MenuBar" holds the bar's titles, and
// each context named "...Menu" the entries of one menu (MenuTexts keeps them so).
std::map<QString, QStringList> menuTexts()
{
    std::map<QString, QStringList> menus;
    QFile file(QStringLiteral(OSTREL_SOURCE_ROOT "/resources/locales/ostrel_en_US.ts"));
    if (!file.open(QIODevice::ReadOnly))
        return menus;
    QXmlStreamReader xml(&file);
    QString context;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (xml.name() == QLatin1String("name"))
            context = xml.readElementText();
        else if (xml.name() == QLatin1String("source") &&
                 (context.endsWith(QLatin1String("Menu")) || context == QLatin1String("MenuBar")))
            menus[context] << xml.readElementText();
    }
    return menus;
}

} // namespace

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
        QAction* entry = texts->addAction("Ho&me Page");
        QCOMPARE(menu.title(), QStringLiteral("&Help"));

        QTranslator german;
        QVERIFY(german.load(QStringLiteral(OSTREL_BUILD_ROOT "/resources/locales/de_DE/ostrel_de_DE.qm")));
        const QString title = german.translate("MenuBar", "&Help");
        const QString home = german.translate("HelpMenu", "Ho&me Page");
        QVERIFY(!title.isEmpty() && title != QStringLiteral("&Help"));
        QVERIFY(!home.isEmpty());

        QCoreApplication::installTranslator(&german);
        QTRY_COMPARE(menu.title(), title);
        QCOMPARE(entry->text(), home);

        QCoreApplication::removeTranslator(&german);
        QTRY_COMPARE(menu.title(), QStringLiteral("&Help"));
        QCOMPARE(entry->text(), QStringLiteral("Ho&me Page"));
    }

    // Alt and a letter reach one entry of the bar, and one entry of an open menu, in every locale.
    void mnemonicsDifferWithinAMenu_data()
    {
        QTest::addColumn<QString>("qmFile");
        const QString root = QStringLiteral(OSTREL_BUILD_ROOT "/resources/locales");
        for (const QString& locale : QDir(root).entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name))
            QTest::newRow(qPrintable(locale)) << QStringLiteral("%1/%2/ostrel_%2.qm").arg(root, locale);
    }

    void mnemonicsDifferWithinAMenu()
    {
        QFETCH(QString, qmFile);
        QTranslator translator;
        QVERIFY2(translator.load(qmFile), qPrintable(qmFile));
        const auto menus = menuTexts();
        QVERIFY(menus.size() >= 4 && menus.count(QStringLiteral("MenuBar")) == 1);
        static const QRegularExpression mnemonic(QStringLiteral("&([^&\\s])"));
        QStringList faults;
        for (const auto& [context, sources] : menus) {
            std::map<QString, QString> taken; // letter -> text
            for (const QString& source : sources) {
                QString text = translator.translate(qPrintable(context), qPrintable(source));
                if (text.isEmpty())
                    text = source;
                const auto match = mnemonic.match(text);
                if (!match.hasMatch())
                    continue;
                const QString letter = match.captured(1).toLower();
                if (taken.count(letter))
                    faults << QStringLiteral("%1: \"%2\" and \"%3\"").arg(context, taken[letter], text);
                taken[letter] = text;
            }
        }
        QVERIFY2(faults.isEmpty(), qPrintable(faults.join(QStringLiteral("; "))));
    }
};

OSTREL_TEST_MAIN(MenuTextsTest)

#include "tst_menutexts.moc"
