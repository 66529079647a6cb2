#include "Foundation/Utf8.h"
#include "QtUtil/ApplicationVisibleVersion.h"
#include "QtUtil/HardwareInfoReport.h"
#include "QtUtil/SpontaneousDialog.h"

#include "FakeCustomization.h"
#include "TestEnvironment.h"

#include <QApplication>
#include <QMainWindow>
#include <QPushButton>

class TestQtUtil : public QObject
{
    Q_OBJECT

private slots:
    void visibleVersion_data()
    {
        QTest::addColumn<QString>("version");
        QTest::addColumn<QString>("visible");
        QTest::newRow("release") << QStringLiteral("2.5.0.0") << QStringLiteral("2.5");
        QTest::newRow("major only release") << QStringLiteral("2.0.0.0") << QStringLiteral("2.0");
        QTest::newRow("patch") << QStringLiteral("2.5.1.0") << QStringLiteral("2.5.1");
        QTest::newRow("build") << QStringLiteral("2.5.1.1234") << QStringLiteral("2.5.1.1234");
        QTest::newRow("zero inside") << QStringLiteral("2.5.0.7") << QStringLiteral("2.5.0.7");
        QTest::newRow("padded") << QStringLiteral("  2.5.0.0\n") << QStringLiteral("2.5");
        QTest::newRow("empty") << QString() << QString();
        QTest::newRow("suffix") << QStringLiteral(" 2.5-beta ") << QStringLiteral("2.5-beta");
        QTest::newRow("empty part") << QStringLiteral("2..0") << QStringLiteral("2..0");
        QTest::newRow("non-ascii digits") << QStringLiteral("٢.٥.0.0") << QStringLiteral("٢.٥.0.0");
    }

    void visibleVersion()
    {
        QFETCH(QString, version);
        QFETCH(QString, visible);
        QCOMPARE(Ostrel::Util::GenerateApplicationVisibleVersion(version.toStdString()), visible);
    }

    void utf8RoundTrip()
    {
        const QString text = QStringLiteral("Grüße, 日本語, emoji \U0001F600");
        const std::string bytes = Ostrel::Util::QStringToUtf8(text);
        QCOMPARE(bytes, std::string("Gr\xC3\xBC\xC3\x9F"
                                    "e, \xE6\x97\xA5\xE6\x9C\xAC\xE8\xAA\x9E, emoji \xF0\x9F\x98\x80"));
        QCOMPARE(Ostrel::Util::Utf8ToQString(bytes), text);
        QCOMPARE(Ostrel::Util::Utf8ToQString(std::string("a\0b", 3)).size(), 3);
    }

    void mainWindowAndParents()
    {
        QVERIFY(!Ostrel::Util::SpontaneousDialog::GetMainWindow());
        QMainWindow window;
        auto* central = new QWidget(&window);
        window.setCentralWidget(central);
        auto* button = new QPushButton(central);
        window.show();
        QCOMPARE(Ostrel::Util::SpontaneousDialog::GetMainWindow(), &window);
        QCOMPARE(Ostrel::Util::SpontaneousDialog::findParent<QMainWindow>(button), &window);
        QCOMPARE(Ostrel::Util::SpontaneousDialog::findParent<QMainWindow>(&window), nullptr);
        QCOMPARE(Ostrel::Util::SpontaneousDialog::findParent<QMainWindow>(nullptr), nullptr);
    }

    void hardwareInfoDescribesTheMachine()
    {
        const QString info = Ostrel::Util::GetHardwareInfo(Ostrel::Test::FakeCustomization());
        const QStringList lines = info.split(QLatin1Char('\n'));
        QVERIFY2(lines.size() >= 5, qPrintable(info));
        QCOMPARE(lines.at(0), QStringLiteral("Application: Links Probe 3.2.1 (3.2.1.0)"));
        QVERIFY2(lines.at(1).startsWith(QStringLiteral("OS: ")), qPrintable(info));
        QVERIFY2(lines.at(2).startsWith(QStringLiteral("CPU: ")) &&
                     !lines.at(2).contains(QStringLiteral("unknown")),
                 qPrintable(info));
        QVERIFY2(lines.at(3).startsWith(QStringLiteral("Memory: ")) &&
                     lines.at(3).endsWith(QStringLiteral(" MiB")),
                 qPrintable(info));
        // The offscreen platform has one screen.
        QVERIFY2(lines.at(4).startsWith(QStringLiteral("Screen 1: ")), qPrintable(info));
    }
};

OSTREL_TEST_MAIN(TestQtUtil)
#include "tst_qtutil.moc"
