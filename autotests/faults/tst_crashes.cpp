#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

#include <csignal>

// Each row runs the crash probe in a fresh home and reads the crash records it left.
class TestCrashes : public QObject
{
    Q_OBJECT

private slots:
    // Whatever the kind, one record, then SIGABRT: unwinding through a modal box's loop must not
    // turn it into a segmentation fault on the way.
    void oneRecordPerException_data()
    {
        QTest::addColumn<QString>("scenario");
        QTest::addColumn<QString>("recordMentions");

        QTest::newRow("main thread, recorded by the event guard, then terminate")
            << QStringLiteral("main") << QStringLiteral("failingReceiver");
        QTest::newRow("main thread, modal box before the main loop")
            << QStringLiteral("modal") << QStringLiteral("failingReceiver");
        QTest::newRow("main thread, modal box inside the main loop")
            << QStringLiteral("modal in main loop") << QStringLiteral("failingReceiver");
        QTest::newRow("non-std exception reaches terminate")
            << QStringLiteral("terminate") << QStringLiteral("type int");
        // Its text names an address, which the record masks.
        QTest::newRow("exception escapes a thread")
            << QStringLiteral("thread") << QStringLiteral("failure in a thread for ***\n");
    }

    void oneRecordPerException()
    {
        QFETCH(QString, scenario);
        QFETCH(QString, recordMentions);

        QTemporaryDir home;
        QVERIFY(home.isValid());
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        // Qt complains about exceptions in event handlers, which is the point here.
        env.remove(QStringLiteral("OSTREL_QT_WARNINGS_FAIL"));
        env.insert(QStringLiteral("HOME"), home.path());
        env.insert(QStringLiteral("XDG_DATA_HOME"), home.filePath(QStringLiteral("data")));
        env.insert(QStringLiteral("XDG_CONFIG_HOME"), home.filePath(QStringLiteral("config")));
        env.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
        QProcess probe;
        probe.setProcessEnvironment(env);
        probe.start(QStringLiteral(CRASH_PROBE), {scenario});
        QVERIFY2(probe.waitForFinished(60000), "the probe did not end");

        QCOMPARE(probe.exitStatus(), QProcess::CrashExit);
        QCOMPARE(probe.exitCode(), SIGABRT);
        const QString output = QString::fromUtf8(probe.readAllStandardOutput());
        const QRegularExpressionMatch path =
            QRegularExpression(QStringLiteral("crashRecord=(.*)")).match(output);
        QVERIFY2(path.hasMatch(), qPrintable(output));
        QFile records(path.captured(1).trimmed());
        QVERIFY2(records.open(QIODevice::ReadOnly), qPrintable(records.fileName()));
        const QString text = QString::fromUtf8(records.readAll());
        QCOMPARE(text.count(QStringLiteral("\n==== ")) + (text.startsWith(QStringLiteral("==== ")) ? 1 : 0),
                 1);
        QVERIFY2(text.contains(recordMentions), qPrintable(text));
        // The record may quote what the user typed: it is the user's alone.
        const QFileDevice::Permissions groupOrOthers = QFileDevice::ReadGroup | QFileDevice::WriteGroup |
                                                       QFileDevice::ReadOther | QFileDevice::WriteOther;
        QCOMPARE(records.permissions() & groupOrOthers, QFileDevice::Permissions());
    }
};

QTEST_GUILESS_MAIN(TestCrashes)
#include "tst_crashes.moc"
