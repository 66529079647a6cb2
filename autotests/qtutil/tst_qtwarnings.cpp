#include "LogCapture.h"
#include "QtUtil/AlertBox.h"
#include "QtUtil/QtMessageRouting.h"
#include "TestEnvironment.h"

#include <QApplication>
#include <QLoggingCategory>
#include <QPushButton>
#include <QTimer>

using Ostrel::Util::AlertBox;

namespace {

Q_LOGGING_CATEGORY(lcRouting, "ostrel.routing")

} // namespace

// Cases that make Qt warn by design: the routing test emits warnings, and the offscreen platform
// warns about size hints whenever a message box is shown. They run without QT_FATAL_WARNINGS.
class TestQtWarnings : public QObject
{
    Q_OBJECT

private slots:
    void qtMessagesReachGlog()
    {
        Ostrel::Test::LogCapture log;
        const QtMessageHandler previous = Ostrel::Util::InstallQtMessageRouting();
        qWarning("plain warning %d", 1);
        qCCritical(lcRouting) << "categorized";
        qInfo() << "info";
        // QtTest's own handler goes back before any QCOMPARE can report through it.
        qInstallMessageHandler(previous);

        const auto lines = log.lines();
        QCOMPARE(lines.size(), std::size_t(3));
        QCOMPARE(lines[0].severity, google::GLOG_WARNING);
        QCOMPARE(lines[0].text, std::string("plain warning 1"));
        QCOMPARE(lines[1].severity, google::GLOG_ERROR);
        QCOMPARE(lines[1].text, std::string("[ostrel.routing] categorized"));
        QCOMPARE(lines[2].severity, google::GLOG_INFO);
    }

    void alertBoxReturnsTheAnswer_data()
    {
        QTest::addColumn<int>("answer");
        QTest::addColumn<bool>("pressEscape");
        QTest::addColumn<int>("expected");
        QTest::newRow("yes clicked") << int(QMessageBox::Yes) << false << int(QMessageBox::Yes);
        QTest::newRow("no clicked") << int(QMessageBox::No) << false << int(QMessageBox::No);
        QTest::newRow("escape") << 0 << true << int(QMessageBox::Cancel);
    }

    void alertBoxReturnsTheAnswer()
    {
        QFETCH(int, answer);
        QFETCH(bool, pressEscape);
        QFETCH(int, expected);

        AlertBox box(AlertBox::Question, QStringLiteral("Title"), QStringLiteral("Keep going?"),
                     QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel);
        bool openWhenAnswered = false;
        QTimer::singleShot(0, this, [&] {
            openWhenAnswered = QApplication::activeModalWidget() == &box;
            if (pressEscape)
                QTest::keyClick(&box, Qt::Key_Escape);
            else
                box.button(QMessageBox::StandardButton(answer))->click();
        });
        QCOMPARE(int(box.Exec()), expected);
        QVERIFY(openWhenAnswered);
    }

    void alertBoxUnknownLevelHasNoIcon()
    {
        const AlertBox box(static_cast<AlertBox::Level>(17), QStringLiteral("t"), QStringLiteral("x"),
                           QMessageBox::Ok);
        QCOMPARE(box.icon(), QMessageBox::NoIcon);
        QCOMPARE(
            AlertBox(AlertBox::Critical, QStringLiteral("t"), QStringLiteral("x"), QMessageBox::Ok).icon(),
            QMessageBox::Critical);
    }
};

OSTREL_TEST_MAIN(TestQtWarnings)
#include "tst_qtwarnings.moc"
