#include "HostProcess.h"
#include "UpdatePackage.h"

#include <QSysInfo>

#include <QTemporaryDir>
#include <QtTest>

// The real host on a machine without a display: whatever it shows during the start, a run asked
// to quit ends by itself.
class TestHostEnds : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // A display that does not exist: anything that needed one would abort.
    void helpAndVersionNeedNoDisplay_data()
    {
        QTest::addColumn<QString>("option");
        QTest::addColumn<QString>("printed");
        QTest::newRow("help") << QStringLiteral("--help") << QStringLiteral("--no-start-nag");
        QTest::newRow("version") << QStringLiteral("--version") << QStringLiteral("Ostrel Host ");
    }

    void helpAndVersionNeedNoDisplay()
    {
        QFETCH(QString, option);
        QFETCH(QString, printed);
        QTemporaryDir dir;
        HostProcess host(dir.filePath(QStringLiteral("home")), dir.filePath(QStringLiteral("run")));
        host.addEnvironment(QStringLiteral("QT_QPA_PLATFORM=xcb"));
        host.addEnvironment(QStringLiteral("DISPLAY=:2147"));
        host.addEnvironment(QStringLiteral("WAYLAND_DISPLAY="));
        host.start({option});
        QVERIFY(host.waitForExit(30000));
        QCOMPARE(host.exitCode(), 0);
        QVERIFY2(host.standardOutput().contains(printed), qPrintable(host.standardOutput()));
    }

    // The link table names the Windows package; a Linux host asks for the Debian package of the
    // processor it was built for.
    void updateCheckAsksForThisSystemsPackage()
    {
        const QString arch = QSysInfo::buildCpuArchitecture();
        const QString debian = arch == QLatin1String("x86_64") ? QStringLiteral("amd64")
                               : arch == QLatin1String("arm")  ? QStringLiteral("armhf")
                                                               : arch;
        QCOMPARE(updatePackageUrl(QStringLiteral("https://updates.example/win/x86_64/latest?v=1")),
                 QStringLiteral("https://updates.example/linux/%1/latest?v=1").arg(debian));
    }

    // The test help is a modal box opened inside the start; nobody answers it offscreen.
    void theTestHelpPrintsAndEnds()
    {
        QTemporaryDir dir;
        HostProcess host(dir.filePath(QStringLiteral("home")), dir.filePath(QStringLiteral("run")));
        QVERIFY(HostProcess::MakeRuntimeFolder(dir.filePath(QStringLiteral("run"))));
        host.addEnvironment(QStringLiteral("BROWSER=/bin/true"));
        host.start({QStringLiteral("--test-help"), QStringLiteral("--quit-after=300")});
        QVERIFY2(host.waitForExit(30000), "the host still waits for an answer");
        QCOMPARE(host.exitCode(), 0);
        const QString printed = host.standardOutput();
        for (const char* option : {"--test-help Show help for test options", "--test-nag-screens "})
            QVERIFY2(printed.contains(QLatin1String(option)), qPrintable(printed));
        // The nag and URL tests both take the locales; the table names the option once.
        QCOMPARE(printed.count(QLatin1String("--test-custom-locales ")), 1);
    }
};

QTEST_GUILESS_MAIN(TestHostEnds)

#include "tst_hostends.moc"
