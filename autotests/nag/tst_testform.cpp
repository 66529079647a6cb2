// The nag tester: its widgets, the icons and the state of each action, the reload progress with
// an action reported twice, and the fingerprint view with differences in red.

#include "App/Application/NagScreen/NagScreenTestForm.h"

#include "NagFakes.h"
#include "TestEnvironment.h"

#include <QComboBox>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>

using namespace Ostrel;
using namespace Ostrel::App::NagScreen;
using namespace Ostrel::Test;

class TestFormTest : public QObject
{
    Q_OBJECT

    std::shared_ptr<FakeManager> manager;

    std::shared_ptr<FakeManager> makeManager()
    {
        auto result = std::make_shared<FakeManager>();
        auto config = std::make_shared<NagConfig>();
        for (const char* action : {"before_routine", "app_start", "Zeta"})
            config->Add(QStringLiteral("free"), NagRecord{QString::fromLatin1(action),
                                                          Implementation::None,
                                                          {},
                                                          QStringLiteral("qrc:/x.qml"),
                                                          {},
                                                          {},
                                                          false});
        for (const char* action : {"app_start", "app_close"})
            config->Add(QStringLiteral("any_mode"), NagRecord{QString::fromLatin1(action),
                                                              Implementation::None,
                                                              {},
                                                              QStringLiteral("qrc:/x.qml"),
                                                              {},
                                                              {},
                                                              false});
        config->Add(QStringLiteral("trial"), NagRecord{QStringLiteral("major_update"),
                                                       Implementation::None,
                                                       {},
                                                       QStringLiteral("qrc:/x.qml"),
                                                       {},
                                                       {},
                                                       false});
        result->config = config;
        result->available = {QStringLiteral("app_start")};
        return result;
    }

    static QString hashText(QWidget& form)
    {
        return form.findChild<QLabel*>(QStringLiteral("hash_label"))->text();
    }

private Q_SLOTS:
    void init() { manager = makeManager(); }

    void actionsOfTheModeAndOfAnyMode()
    {
        NagScreenTestForm form(manager);
        QCOMPARE(form.windowTitle(), QStringLiteral("Nag Screen Tester"));
        QVERIFY(manager->observers.count(&form));
        auto* combo = form.findChild<QComboBox*>(QStringLiteral("chooseNag_comboBox"));
        QStringList items;
        for (int i = 0; i < combo->count(); ++i)
            items << combo->itemData(i).toString();
        // Case-sensitive order: upper case first.
        QCOMPARE(items, (QStringList{QStringLiteral("Zeta"), QStringLiteral("app_close"),
                                     QStringLiteral("app_start"), QStringLiteral("before_routine")}));
        QCOMPARE(combo->iconSize(), QSize(14, 14));
        for (const char* name : {"showNag_button", "chooseCustomPath_button", "reloadAllNags_button"})
            QVERIFY(form.findChild<QPushButton*>(QString::fromLatin1(name)));

        auto* state = form.findChild<QLabel*>(QStringLiteral("currentActionState_label"));
        QCOMPARE(combo->currentText(), QStringLiteral("Zeta"));
        QCOMPARE(state->text(),
                 QStringLiteral("<b style=\"color: #d95963;\">Unavailable</b> static or web nag"));
        combo->setCurrentText(QStringLiteral("app_start"));
        QCOMPARE(state->text(), QStringLiteral("static or web nag"));

        // The icons tell availability apart: a ring and a disc of two colours.
        const QImage unavailable = combo->itemIcon(0).pixmap(14, 14).toImage();
        const QImage available = combo->itemIcon(2).pixmap(14, 14).toImage();
        QCOMPARE(QColor(unavailable.pixel(7, 1)).name(), QStringLiteral("#d95963"));
        QCOMPARE(qAlpha(unavailable.pixel(7, 7)), 0);
        QCOMPARE(QColor(available.pixel(7, 7)).name(), QStringLiteral("#a0d039"));
    }

    void reloadCountsEachActionOnce()
    {
        NagScreenTestForm form(manager);
        form.show();
        auto* bar = form.findChild<QProgressBar*>(QStringLiteral("nagReload_progressBar"));
        QVERIFY(bar->isHidden());
        QCOMPARE(bar->format(), QStringLiteral("Reloading: %v/%m"));
        manager->overridden.clear();
        form.findChild<QPushButton*>(QStringLiteral("reloadAllNags_button"))->click();
        QCOMPARE(manager->reloads, std::vector<std::string>{"REASON_UNKNOWN"});
        QVERIFY(bar->isVisible());
        QCOMPARE(bar->maximum(), 4);
        QCOMPARE(bar->value(), 0);

        form.onNagAvailable(QStringLiteral("app_start"), true);
        form.onNagAvailable(QStringLiteral("app_start"), true);
        QCOMPARE(bar->value(), 1);
        form.onNagAvailable(QStringLiteral("unknown"), false);
        form.onNagAvailable(QStringLiteral("Zeta"), false);
        form.onNagAvailable(QStringLiteral("app_close"), true);
        QCOMPARE(bar->value(), 3);
        QCOMPARE(bar->text(), QStringLiteral("Reloading: 3/4"));
        QVERIFY(bar->isVisible());
        form.onNagAvailable(QStringLiteral("before_routine"), true);
        QVERIFY(bar->isHidden());
        // Outside a reload the bar stays away.
        form.onNagAvailable(QStringLiteral("app_start"), false);
        QVERIFY(bar->isHidden());
    }

    void fingerprintView_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QSize>("size");
        QTest::addColumn<QString>("internal");
        QTest::addColumn<QString>("computed");
        QTest::addColumn<QStringList>("cells");

        const QString red = QStringLiteral("<span style='color:red;'>%1</span>");
        QTest::newRow("one of four differs")
            << "welcome" << QSize(2, 2) << "0101"
            << "0111"
            << QStringList{QStringLiteral("welcome"),
                           QStringLiteral("2"),
                           QStringLiteral("2"),
                           QStringLiteral("01") + red.arg(QLatin1Char('0')) + QStringLiteral("1"),
                           QStringLiteral("01") + red.arg(QLatin1Char('1')) + QStringLiteral("1"),
                           QStringLiteral("1"),
                           QStringLiteral("25%")};
        QTest::newRow("one of three differs") << "x" << QSize(3, 1) << "011"
                                              << "010"
                                              << QStringList{QStringLiteral("x"),
                                                             QStringLiteral("3"),
                                                             QStringLiteral("1"),
                                                             QStringLiteral("01") + red.arg(QLatin1Char('1')),
                                                             QStringLiteral("01") + red.arg(QLatin1Char('0')),
                                                             QStringLiteral("1"),
                                                             QStringLiteral("33.3333%")};
        const QString noDistance =
            QStringLiteral("some hash is empty, it is impossible to calculate the distance");
        const QString noSize = QStringLiteral("hashSize is not specified in the nag");
        QTest::newRow("nothing named") << "" << QSize() << "0101"
                                       << ""
                                       << QStringList{QStringLiteral("add hashName to nag to calculate hash"),
                                                      noSize,
                                                      noSize,
                                                      QStringLiteral("0101"),
                                                      QString(),
                                                      noDistance,
                                                      noDistance};
    }

    void fingerprintView()
    {
        QFETCH(QString, name);
        QFETCH(QSize, size);
        QFETCH(QString, internal);
        QFETCH(QString, computed);
        QFETCH(QStringList, cells);
        manager->onShow = [&](const QString&) {
            manager->setHash({name, size, internal, computed});
            return 1;
        };
        NagScreenTestForm form(manager);
        form.findChild<QPushButton*>(QStringLiteral("showNag_button"))->click();
        QCOMPARE(manager->shown, std::vector<QString>{QStringLiteral("Zeta")});
        const QString expected =
            QStringLiteral(
                "<table><tr><td>hashName:</td>      <td>%1</td></tr><tr><td>hashWidth:</td>      "
                "<td>%2</td></tr>"
                "<tr><td>hashHeight:</td>     <td>%3</td></tr><tr><td>inNagHash:</td>      <td>%4</td></tr>"
                "<tr><td>computedNagHash:</td><td>%5</td></tr><tr><td>distance:</td>       <td>%6</td></tr>"
                "<tr><td>distance (%):</td>   <td>%7</td></tr></table>")
                .arg(cells[0], cells[1], cells[2], cells[3], cells[4], cells[5], cells[6]);
        QCOMPARE(hashText(form), expected);
    }

    void aHashThatComesLaterIsShownOnce()
    {
        NagScreenTestForm form(manager);
        const QString first = hashText(form);
        form.findChild<QPushButton*>(QStringLiteral("showNag_button"))->click();
        QCOMPARE(hashText(form), first);
        manager->setHash({QStringLiteral("late"), QSize(1, 1), QStringLiteral("1"), QStringLiteral("1")});
        QVERIFY(hashText(form).contains(QStringLiteral("<td>late</td>")));
        manager->setHash({QStringLiteral("later"), QSize(1, 1), QStringLiteral("1"), QStringLiteral("1")});
        QVERIFY(!hashText(form).contains(QStringLiteral("later")));
    }

    void destroyedFormLeavesTheManager()
    {
        {
            NagScreenTestForm form(manager);
            form.findChild<QPushButton*>(QStringLiteral("showNag_button"))->click();
        }
        QVERIFY(manager->observers.empty());
        // The setter no longer knows the form: this must not reach it.
        manager->setHash({QStringLiteral("after"), QSize(1, 1), QStringLiteral("1"), QStringLiteral("1")});
    }
};

OSTREL_TEST_MAIN(TestFormTest)
#include "tst_testform.moc"
