#include "HostProcess.h"

#include <QRegularExpression>
#include <QTemporaryDir>
#include <QtTest>

// The real host as a product team meets it: which launches thank the user with a page, a quit
// that comes while the thank-you wait is still under way, and the console of the main job.
class TestHostRun : public QObject
{
    Q_OBJECT

    static void prepare(HostProcess& host, const QTemporaryDir& dir)
    {
        QVERIFY(HostProcess::MakeRuntimeFolder(dir.filePath(QStringLiteral("run"))));
        // The page "opens" without a browser.
        host.addEnvironment(QStringLiteral("BROWSER=/bin/true"));
    }

private Q_SLOTS:
    void thankYouPageByLaunchType_data()
    {
        QTest::addColumn<int>("launchType");
        QTest::addColumn<bool>("quitAtOnce");
        QTest::addColumn<int>("pages");

        QTest::newRow("regular launch") << 0 << false << 0;
        QTest::newRow("first launch") << 1 << false << 1;
        QTest::newRow("first after an update") << 2 << false << 1;
        QTest::newRow("restarted") << 3 << false << 0;
        QTest::newRow("background") << 4 << false << 0;
        // The quit comes while the waiter pauses after finding the window: the run ends by itself
        // and the page does not open behind the user's back.
        QTest::newRow("first launch, quit during the wait") << 1 << true << 0;
    }

    void thankYouPageByLaunchType()
    {
        QFETCH(int, launchType);
        QFETCH(bool, quitAtOnce);
        QFETCH(int, pages);
        QTemporaryDir dir;
        HostProcess host(dir.filePath(QStringLiteral("home")), dir.filePath(QStringLiteral("run")));
        prepare(host, dir);
        QStringList arguments{QStringLiteral("--no-start-nag"),
                              QStringLiteral("--launch-type=%1").arg(launchType)};
        if (quitAtOnce)
            arguments << QStringLiteral("--quit-after=0");
        host.start(arguments);

        const auto count = [&host](const char* event) {
            return host.trackingEvents().count(QLatin1String(event));
        };
        if (quitAtOnce) {
            QVERIFY2(host.waitForExit(30000), "the quit waits for the thank-you waiter");
            QCOMPARE(host.exitCode(), 0);
            QCOMPARE(count("APP_QUIT"), 1);
        } else if (pages > 0) {
            QVERIFY2(QTest::qWaitFor([&]() { return count("URL_OPEN") > 0; }, 30000), qPrintable(host.log()));
        } else {
            QVERIFY(QTest::qWaitFor([&]() { return count("APP_START") > 0; }, 30000));
            // A check that nothing comes: a wait begun at the start reports after its first
            // attempt and one pause (300 ms), and the page follows at once.
            QTest::qWait(1500);
        }
        QCOMPARE(count("TYFI_CHECK_WINDOW"), pages);
        QCOMPARE(count("URL_OPEN"), pages);
    }

    // The main job's console: where the walk is, no walk warnings, and the summary at the end.
    void mainJobConsole()
    {
        QTemporaryDir dir;
        HostProcess host(dir.filePath(QStringLiteral("home")), dir.filePath(QStringLiteral("run")));
        prepare(host, dir);
        host.start({QStringLiteral("--no-start-nag"), QStringLiteral("--quit-after=0"),
                    QStringLiteral("--test-nag-screens=app_close"),
                    QStringLiteral("--test-custom-locales=en_US,de_DE"),
                    QStringLiteral("--test-show-nag-delay=0"), QStringLiteral("--test-dump-urls"),
                    QStringLiteral("--test-nag-screens-dir=") + dir.filePath(QStringLiteral("harness"))});
        QVERIFY2(host.waitForExit(60000), "the walk did not end");
        QCOMPARE(host.exitCode(), 0);

        const QStringList printed = host.standardOutput().split(QLatin1Char('\n'), Qt::SkipEmptyParts);
        const QStringList progress = printed.filter(QRegularExpression(
            QStringLiteral("^Nag \\d/4 \\((de_DE|en_US)\\): (free|trial)-local-app_close$")));
        QCOMPARE(progress.size(), 4);
        for (int i = 0; i < 4; ++i)
            QVERIFY2(progress.at(i).startsWith(QStringLiteral("Nag %1/4 ").arg(i + 1)),
                     qPrintable(progress.join(QLatin1Char('\n'))));
        QVERIFY2(printed.last().startsWith(QLatin1String("Tracking: ")),
                 qPrintable(printed.join(QLatin1Char('\n'))));
        // The dump's one warning per link the module lacks, in every locale: counted on the
        // console, listed in the log.
        QVERIFY2(printed.filter(QRegularExpression(
                                    QStringLiteral("^URLs of 2 locales dumped, [1-9]\\d* without a URL")))
                         .size() == 1,
                 qPrintable(printed.join(QLatin1Char('\n'))));
        QVERIFY(host.log().contains(QLatin1String("Cannot find url ")));
        QVERIFY2(!host.standardError().contains(QLatin1String("Cannot find url ")),
                 qPrintable(host.standardError()));
    }
};

QTEST_GUILESS_MAIN(TestHostRun)

#include "tst_hostrun.moc"
