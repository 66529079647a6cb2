// What only a separate process can show: the restarted program's command line, an exception that
// the event guard lets go on, the application's lock, two instances starting side by side.

#include "ProbeRunner.h"
#include "TestEnvironment.h"

#include <QTemporaryDir>

using Ostrel::Test::ProbeRunner;

class ProcessesTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void restartStartsTheProgramWithItsArguments_data()
    {
        QTest::addColumn<QString>("arguments");
        QTest::addColumn<QStringList>("expected");
        QTest::newRow("none") << QString() << QStringList();
        QTest::newRow("plain") << QStringLiteral("--minimized --launch-type=3")
                               << QStringList{QStringLiteral("--minimized"),
                                              QStringLiteral("--launch-type=3")};
        QTest::newRow("quoted blank")
            << QStringLiteral("\"a b\" c") << QStringList{QStringLiteral("a b"), QStringLiteral("c")};
        QTest::newRow("non-ASCII") << QStringLiteral("--name=Grüße")
                                   << QStringList{QStringLiteral("--name=Grüße")};
    }

    void restartStartsTheProgramWithItsArguments()
    {
        QFETCH(QString, arguments);
        QFETCH(QStringList, expected);

        QTemporaryDir dir;
        const QString recordPath = dir.filePath(QStringLiteral("record.txt"));
        ProbeRunner probe(QStringLiteral(KERNEL_PROBE));
        probe.environment().insert(QStringLiteral("OSTREL_PROBE_RECORD"), recordPath);

        const auto result = probe.run({QStringLiteral("restart"), arguments});
        QCOMPARE(result.exitCode, 0);
        QCOMPARE(result.values.value(QStringLiteral("restarted")), QStringLiteral("1"));

        // The new process runs detached; wait for what it recorded.
        QTRY_VERIFY_WITH_TIMEOUT(
            QFileInfo(recordPath).size() > 0 || (expected.isEmpty() && QFile::exists(recordPath)), 20000);
        QFile record(recordPath);
        QVERIFY(record.open(QIODevice::ReadOnly));
        QStringList got = QString::fromUtf8(record.readAll()).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
        QCOMPARE(got, expected);
    }

    void restartWithoutAnApplicationIsRefused()
    {
        const auto result =
            ProbeRunner(QStringLiteral(KERNEL_PROBE))
                .run({QStringLiteral("restart"), QStringLiteral("--x"), QStringLiteral("early")});
        QCOMPARE(result.exitCode, 0);
        QCOMPARE(result.values.value(QStringLiteral("restarted")), QStringLiteral("0"));
        QVERIFY2(result.standardError.contains(QLatin1String("Restart refused")),
                 qPrintable(result.standardError));
    }

    void lifetimeStartedAfterTheApplicationIsGoneCallsNothingOfIt()
    {
        const auto result = ProbeRunner(QStringLiteral(KERNEL_PROBE)).run({QStringLiteral("lateStart")});
        QVERIFY2(result.finished && result.exitCode == 0, qPrintable(result.standardError));
        QCOMPARE(result.values.value(QStringLiteral("dismissals")), QStringLiteral("0"));
    }

    void guardLogsTracksAndRethrowsStandardExceptions()
    {
        const auto result =
            ProbeRunner(QStringLiteral(KERNEL_PROBE)).run({QStringLiteral("guard"), QStringLiteral("std")});
        QCOMPARE(result.exitStatus, QProcess::NormalExit);
        QCOMPARE(result.exitCode, 3);
        QCOMPARE(result.values.value(QStringLiteral("rethrown")), QStringLiteral("slot exploded"));

        const QString& log = result.standardError;
        const int header = log.indexOf(QLatin1String("Exception has been caught in event processing\n"));
        QVERIFY2(header >= 0, qPrintable(log));
        QCOMPARE(log.at(log.lastIndexOf(QLatin1Char('\n'), header) + 1), QLatin1Char('E')); // an ERROR
        const QString details = log.mid(header);
        QVERIFY2(details.contains(QLatin1String("\n\tReceiver: ")), qPrintable(details));
        QVERIFY(details.contains(
            QLatin1String("Thrower\n\tEvent class: QMetaCallEvent. Event type: QEvent::MetaCall\n")));
        QVERIFY(details.contains(QLatin1String("\tException details: ")));
        QVERIFY(details.contains(QLatin1String("slot exploded")));

        QFile crashRecord(result.values.value(QStringLiteral("crashRecord")));
        QVERIFY2(crashRecord.open(QIODevice::ReadOnly), qPrintable(crashRecord.fileName()));
        QVERIFY(crashRecord.readAll().contains("slot exploded"));
    }

    void guardLetsOtherExceptionsPassUnseen()
    {
        const auto result =
            ProbeRunner(QStringLiteral(KERNEL_PROBE)).run({QStringLiteral("guard"), QStringLiteral("other")});
        QCOMPARE(result.exitCode, 4);
        QVERIFY(!result.standardError.contains(QLatin1String("Exception has been caught")));
        QVERIFY(!QFile::exists(result.values.value(QStringLiteral("crashRecord"))));
    }

    void applicationHoldsItsLockUntilItIsGone()
    {
        // Under the name other programs of the product (the installer) find with the same names.
        const auto result = ProbeRunner(QStringLiteral(KERNEL_PROBE))
                                .run({QStringLiteral("appmutex"), QStringLiteral("Probe App")});
        QVERIFY2(result.finished && result.exitCode == 0, qPrintable(result.standardError));
        QCOMPARE(result.value(QStringLiteral("lockedWhileAlive")), QStringLiteral("0"));
        QCOMPARE(result.value(QStringLiteral("lockedAfter")), QStringLiteral("1"));
    }

    void secondInstanceIsNotRefused()
    {
        QProcess first, second;
        for (QProcess* process : {&first, &second}) {
            process->setProcessEnvironment(ProbeRunner::defaultEnvironment());
            process->start(QStringLiteral(KERNEL_PROBE),
                           {QStringLiteral("instance"), QStringLiteral("1500")});
        }
        for (QProcess* process : {&first, &second}) {
            QVERIFY(process->waitForFinished(30000));
            QCOMPARE(process->exitStatus(), QProcess::NormalExit);
            QCOMPARE(process->exitCode(), 0);
            QVERIFY(process->readAllStandardOutput().contains("started=1"));
        }
    }
};

OSTREL_TEST_MAIN(ProcessesTest)
#include "tst_processes.moc"
