#include "HostProcess.h"

#include <QTemporaryDir>
#include <QtTest>

// The real host on a machine without a display: whatever it shows during the start, a run asked
// to quit ends by itself.
class TestHostEnds : public QObject
{
    Q_OBJECT

private Q_SLOTS:
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
