// The built-in test harness, driven through its command line in a child process (testing_probe).

#include "TestEnvironment.h"
#include "TestingProbe.h"

#include "FakeCustomization.h"
#include "FakeHardware.h"
#include "FakeLaunchType.h"
#include "MemorySettings.h"

#include "App/Application/LifetimeManager.h"
#include "App/Application/Testing/ITest.h"
#include "App/Application/Testing/TestNagContext_p.h"
#include "App/Application/Testing/Testing.h"

#include <QApplication>
#include <QTemporaryDir>

#include <csignal>

using namespace Ostrel;
using namespace Ostrel::App;
using namespace Ostrel::Test;

namespace {

// The option table as the help dialog must list it: first names only, registration order, the
// crash texts filled in, the locales option that the URL and nag tests share named once.
const char* const FullHelp =
    "--test-help Show help for test options\n"
    "--test-ssl-disable Use http when possible\n"
    "--test-ssl-enable Use https when possible\n"
    "--test-crash-after Set crash after timeout in ms\n"
    "--test-crash-reason Select a crash reason for test-crash-after, available: segfault, exception\n"
    "--test-crash-thread Select a crash thread for test-crash-after, available: main, background\n"
    "--test-internet-disable Disable the internet connection\n"
    "--test-dump-urls Write URLs to dump file\n"
    "--test-open-urls Open URLs in browser\n"
    "--test-log-urls Log opened URLs to file\n"
    "--test-open-urls-delay Set open url delay in ms\n"
    "--test-custom-locales Set locales: en_US,ru_RU\n"
    "--test-show-nag-delay Set show nag delay in ms\n"
    "--test-nag-screens Get NagScreens screenshots\n"
    "--test-nag-group-by-module Group nag by module\n"
    "--test-nag-screens-dir NagScreens screenshots dir\n"
    "--test-nag-path Test nag path\n"
    "--test-nag-helper Show nag executer window\n";

// The sample nags of the built-in map walked in every mode ("app_start" is "any_mode" only).
const QStringList SampleNags{
    QStringLiteral("free-local-app_close"), QStringLiteral("free-local-before_routine"),
    QStringLiteral("trial-local-app_close"), QStringLiteral("trial-local-before_routine")};

// The lines the probe's links of known answers give for one locale, in key order.
QStringList knownLinks(const QString& locale)
{
    return {locale + QStringLiteral(";FAQ_URL_menu;https://links.test/") + locale + QStringLiteral("/1;"),
            locale + QStringLiteral(";BUY_NOW_URL;https://links.test/") + locale + QStringLiteral("/17;"),
            locale + QStringLiteral(";LEARN_MORE_HOTKEYS_URL_CD_tooltip;https://links.test/") + locale +
                QStringLiteral("/134;")};
}

// Counts what the harness asks of it; throws from initialize when told to.
class RecordingTest : public ITest
{
public:
    explicit RecordingTest(bool throwing = false) : m_throwing(throwing) {}
    int initialized = 0;
    int runs = 0;
    void initialize(const QCommandLineParser&) override
    {
        ++initialized;
        if (m_throwing)
            throw std::runtime_error("initialize failed");
    }
    void run(const QCommandLineParser&) override { ++runs; }
    QList<QCommandLineOption> getCLO() const override { return {}; }

private:
    bool m_throwing;
};

} // namespace

class TestingHarnessTest : public QObject
{
    Q_OBJECT

    QTemporaryDir m_data;

    ProbeResult probe(const QString& scenario, const QStringList& options, int stayMs = 0,
                      const QMap<QString, QString>& extraEnv = {})
    {
        QProcessEnvironment env = probeEnvironment(m_data.path());
        env.insert(QStringLiteral("PROBE_STAY_MS"), QString::number(stayMs));
        for (auto it = extraEnv.cbegin(); it != extraEnv.cend(); ++it)
            env.insert(it.key(), it.value());
        return runProbe(QStringList{scenario} + options, env);
    }

    static QString readText(const QString& path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly | QIODevice::Text) ? QString::fromUtf8(file.readAll())
                                                                : QStringLiteral("<missing>");
    }

private slots:
    void helpListsEveryOptionOnce_data()
    {
        QTest::addColumn<QString>("scenario");
        QTest::addColumn<QString>("expected");
        const QString full = QString::fromUtf8(FullHelp);
        // Before Testing::initialize only the constructor's tests and the host's connection test exist.
        QTest::newRow("before initialize")
            << QStringLiteral("core") << full.section(QLatin1Char('\n'), 0, 6) + QLatin1Char('\n');
        QTest::newRow("all tests") << QStringLiteral("full") << full;
    }

    void helpListsEveryOptionOnce()
    {
        QFETCH(QString, scenario);
        QFETCH(QString, expected);
        const ProbeResult result =
            probe(scenario, {QStringLiteral("--test-help"), QStringLiteral("--host-own-option")});
        QVERIFY(result.finished);
        QCOMPARE(result.exitCode, 0);
        QCOMPARE(result.decoded(QStringLiteral("dialog")), expected);
        QCOMPARE(result.values.value(QStringLiteral("dialogTitle")), QString());
        // The aliases are accepted names, only hidden from the help.
        const QStringList names = result.values.value(QStringLiteral("optionNames")).split(QLatin1Char(','));
        QVERIFY(names.contains(QStringLiteral("ssl-disable")));
        QVERIFY(names.contains(QStringLiteral("ssl-enable")));
    }

    void sslAndConnectionOptions_data()
    {
        QTest::addColumn<QStringList>("options");
        QTest::addColumn<QString>("ssl");
        QTest::addColumn<bool>("offline");
        QTest::addColumn<QString>("constructionError");
        const QString conflict =
            QStringLiteral("Invalid options combination: test-ssl-disable and test-ssl-enable");
        QTest::newRow("no option") << QStringList{} << "1" << false << QString();
        QTest::newRow("ssl disabled")
            << QStringList{QStringLiteral("--test-ssl-disable")} << "0" << false << QString();
        QTest::newRow("alias") << QStringList{QStringLiteral("--ssl-disable")} << "0" << false << QString();
        QTest::newRow("ssl enabled") << QStringList{QStringLiteral("--ssl-enable")} << "1" << false
                                     << QString();
        QTest::newRow("enable with disable alias")
            << QStringList{QStringLiteral("--test-ssl-enable"), QStringLiteral("--ssl-disable")} << QString()
            << false << conflict;
        QTest::newRow("internet off, any value")
            << QStringList{QStringLiteral("--test-internet-disable=x")} << "1" << true << QString();
        // A value-taking option last without its value is a parse error, ignored: not set.
        QTest::newRow("internet option without value")
            << QStringList{QStringLiteral("--test-ssl-disable"), QStringLiteral("--test-internet-disable")}
            << "0" << false << QString();
    }

    void sslAndConnectionOptions()
    {
        QFETCH(QStringList, options);
        QFETCH(QString, ssl);
        QFETCH(bool, offline);
        QFETCH(QString, constructionError);
        const ProbeResult result = probe(QStringLiteral("core"), options);
        QVERIFY(result.finished);
        if (!constructionError.isEmpty()) {
            QCOMPARE(result.exitCode, 3);
            QCOMPARE(result.values.value(QStringLiteral("constructionError")), constructionError);
            return;
        }
        QCOMPARE(result.exitCode, 0);
        QCOMPARE(result.values.value(QStringLiteral("ssl")), ssl);
        QCOMPARE(result.values.value(QStringLiteral("checkerReplaced")),
                 offline ? QStringLiteral("1") : QStringLiteral("0"));
        QCOMPARE(result.values.value(QStringLiteral("checkerOnline")),
                 offline ? QStringLiteral("0") : QStringLiteral("1"));
    }

    void crash_data()
    {
        QTest::addColumn<QStringList>("options");
        QTest::addColumn<int>("signal");    // 0: the process survives
        QTest::addColumn<QString>("armed"); // the arming line of the log; empty: not armed
        QTest::addColumn<QString>("logLine");
        QTest::newRow("default: segfault in the background")
            << QStringList{QStringLiteral("--test-crash-after=5")} << int(SIGSEGV)
            << QStringLiteral("segfault on the background thread in 5 ms") << QString();
        QTest::newRow("segfault on the main thread")
            << QStringList{QStringLiteral("--test-crash-after=3"), QStringLiteral("--test-crash-thread=main")}
            << int(SIGSEGV) << QStringLiteral("segfault on the main thread in 3 ms") << QString();
        QTest::newRow("exception on the main thread passes the event guard")
            << QStringList{QStringLiteral("--test-crash-after=4"),
                           QStringLiteral("--test-crash-reason=exception"),
                           QStringLiteral("--test-crash-thread=main")}
            << int(SIGABRT) << QStringLiteral("exception on the main thread in 4 ms")
            << QStringLiteral("Exception has been caught in event processing");
        QTest::newRow("exception in the background")
            << QStringList{QStringLiteral("--test-crash-after=0"),
                           QStringLiteral("--test-crash-reason=exception")}
            << int(SIGABRT) << QStringLiteral("exception on the background thread in 0 ms")
            << QStringLiteral("Exception from test-crash-after");
        QTest::newRow("not a number is 0")
            << QStringList{QStringLiteral("--test-crash-after=abc")} << int(SIGSEGV)
            << QStringLiteral("segfault on the background thread in 0 ms") << QString();
        // The probe's own timer of 0 ms is started after the crash timer: it fires first only if
        // the crash waits for its delay.
        QTest::newRow("the delay holds the crash back")
            << QStringList{QStringLiteral("--test-crash-after=60000")} << 0
            << QStringLiteral("segfault on the background thread in 60000 ms") << QString();
        QTest::newRow("wrong case") << QStringList{QStringLiteral("--test-crash-after=0"),
                                                   QStringLiteral("--test-crash-reason=Segfault")}
                                    << 0 << QString()
                                    << QStringLiteral("Segfault isn't supported value for test-crash-reason");
        QTest::newRow("unknown thread")
            << QStringList{QStringLiteral("--test-crash-after=0"),
                           QStringLiteral("--test-crash-thread=worker")}
            << 0 << QString() << QStringLiteral("worker isn't supported value for test-crash-thread");
        QTest::newRow("reason alone arms nothing")
            << QStringList{QStringLiteral("--test-crash-reason=exception")} << 0 << QString() << QString();
        QTest::newRow("timeout option last without value")
            << QStringList{QStringLiteral("--test-crash-after")} << 0 << QString() << QString();
    }

    // Order, not time: a crash armed for a short delay comes before the probe's own timer of ten
    // seconds (which would report the survival); one not armed lets the probe's timer of 0 ms end
    // the process normally.
    void crash()
    {
        QFETCH(QStringList, options);
        QFETCH(int, signal);
        QFETCH(QString, armed);
        QFETCH(QString, logLine);
        const ProbeResult result = probe(QStringLiteral("core"), options, signal == 0 ? 0 : 10000);
        QVERIFY(result.finished);
        QVERIFY(result.values.contains(QStringLiteral("started")));
        if (!logLine.isEmpty())
            QVERIFY2(result.standardError.contains(logLine), qPrintable(result.standardError));
        if (armed.isEmpty())
            QVERIFY2(!result.standardError.contains(QStringLiteral("Crash test armed")),
                     qPrintable(result.standardError));
        else
            QVERIFY2(result.standardError.contains(QStringLiteral("Crash test armed: ") + armed),
                     qPrintable(result.standardError));
        if (signal == 0) {
            QCOMPARE(result.exitStatus, QProcess::NormalExit);
            QCOMPARE(result.exitCode, 0);
            QVERIFY(result.values.contains(QStringLiteral("survived")));
            return;
        }
        QCOMPARE(result.exitStatus, QProcess::CrashExit);
        QCOMPARE(result.exitCode, signal);
        QVERIFY(!result.values.contains(QStringLiteral("survived")));
    }

    void urlDump_data()
    {
        QTest::addColumn<QString>("wanted");
        QTest::addColumn<QStringList>("locales");
        QTest::newRow("one locale") << QStringLiteral("ru_RU") << QStringList{QStringLiteral("ru_RU")};
        QTest::newRow("order of the option doesn't matter")
            << QStringLiteral("fr_FR,xx_XX,en_US,")
            << QStringList{QStringLiteral("en_US"), QStringLiteral("fr_FR")};
        QTest::newRow("only locales that aren't installed") << QStringLiteral("xx_XX,yy_YY") << QStringList{};
        // The three main locales first, each group in installed (alphabetical) order.
        QTest::newRow("all installed")
            << QString()
            << QStringList{QStringLiteral("de_DE"), QStringLiteral("en_US"), QStringLiteral("ru_RU"),
                           QStringLiteral("es_ES"), QStringLiteral("fr_FR"), QStringLiteral("it_IT"),
                           QStringLiteral("ja_JP"), QStringLiteral("ko_KR"), QStringLiteral("nl_NL"),
                           QStringLiteral("pl_PL"), QStringLiteral("pt_BR"), QStringLiteral("tr_TR"),
                           QStringLiteral("zh_CN"), QStringLiteral("zh_TW")};
    }

    // Over links that answer three keys only, with the locale in the URL: every line is known.
    void urlDump()
    {
        QFETCH(QString, wanted);
        QFETCH(QStringList, locales);
        QStringList options{QStringLiteral("--test-dump-urls")};
        if (!wanted.isEmpty())
            options += QStringLiteral("--test-custom-locales=") + wanted;
        const ProbeResult result = probe(QStringLiteral("short"), options, 0,
                                         {{QStringLiteral("PROBE_LOCALE"), QStringLiteral("de_DE")}});
        QVERIFY(result.finished);
        QCOMPARE(result.exitCode, 0);
        QCOMPARE(result.values.value(QStringLiteral("localeBefore")), QStringLiteral("de_DE"));
        QCOMPARE(result.values.value(QStringLiteral("localeAfter")), QStringLiteral("de_DE"));
        QVERIFY(!result.values.contains(QStringLiteral("open1")));

        QStringList expected;
        for (const QString& locale : locales)
            expected += knownLinks(locale);
        const QString path = result.values.value(QStringLiteral("dumpPath"));
        QVERIFY(path.endsWith(QStringLiteral("/capture-url-dump.csv")));
        // Every link carries the user's name and address: the file is the user's alone.
        QCOMPARE(QFile::permissions(path) & (QFile::ReadGroup | QFile::ReadOther), QFile::Permissions());
        QString text = readText(path);
        QVERIFY(text.isEmpty() || text.endsWith(QLatin1Char('\n')));
        text.chop(1);
        QCOMPARE(text.isEmpty() ? QStringList{} : text.split(QLatin1Char('\n')), expected);
        // A key without a URL is a warning, and no line.
        QVERIFY(locales.isEmpty() ||
                result.standardError.contains(QStringLiteral("Cannot find url FAQ_URLfor module capture")));
    }

    // After the walk, one by one in the dump's order; with the schedule of a test run, in milliseconds.
    void openUrlsInTheDumpsOrder()
    {
        const ProbeResult result =
            probe(QStringLiteral("short"),
                  {QStringLiteral("--test-open-urls"), QStringLiteral("--test-open-urls-delay=2"),
                   QStringLiteral("--test-custom-locales=ru_RU,en_US")},
                  10000, {{QStringLiteral("PROBE_OPEN_COUNT"), QStringLiteral("6")}});
        QVERIFY(result.finished);
        QCOMPARE(result.exitCode, 0);
        QVERIFY2(!result.values.contains(QStringLiteral("survived")), "fewer than six URLs opened");
        QStringList opened;
        for (int i = 1; i <= 6; ++i)
            opened += result.values.value(QStringLiteral("open%1").arg(i));
        QStringList expected;
        for (const QString& line : knownLinks(QStringLiteral("en_US")) + knownLinks(QStringLiteral("ru_RU")))
            expected += line.section(QLatin1Char(';'), 2, 2);
        QCOMPARE(opened, expected);
        // None during the walk itself, and the dump is written as well.
        QVERIFY(result.keys.indexOf(QStringLiteral("started")) <
                result.keys.indexOf(QStringLiteral("open1")));
        QCOMPARE(readText(result.values.value(QStringLiteral("dumpPath"))).count(QLatin1Char('\n')), 6);
    }

    void unwritableDumpAsksAndWalksNothing()
    {
        const QString path = m_data.filePath(QStringLiteral("testing_probe/capture-url-dump.csv"));
        QFile::remove(path);
        QVERIFY(QDir().mkpath(path)); // a folder where the file should be
        const ProbeResult result = probe(QStringLiteral("full"), {QStringLiteral("--test-dump-urls")});
        QDir(path).removeRecursively();
        QVERIFY(result.finished);
        QCOMPARE(result.exitCode, 0);
        QCOMPARE(result.values.value(QStringLiteral("dumpPath")), path);
        QCOMPARE(result.values.value(QStringLiteral("dialogTitle")), QStringLiteral("Config test error"));
        QCOMPARE(result.decoded(QStringLiteral("dialog")),
                 QStringLiteral("Can't open file to dump: ") + path);
        QVERIFY(!result.standardError.contains(QStringLiteral("Cannot find url")));
    }

    void loggedUrlsOpenNoBrowser()
    {
        const QString log = m_data.filePath(QStringLiteral("opened.txt"));
        QFile::remove(m_data.filePath(QStringLiteral("testing_probe/capture-url-dump.csv")));
        const ProbeResult result =
            probe(QStringLiteral("full"), {QStringLiteral("--test-log-urls=") + log}, 0,
                  {{QStringLiteral("PROBE_OPEN_URL"), QStringLiteral("https://example.com/pricing?a=1")}});
        QVERIFY(result.finished);
        QCOMPARE(result.exitCode, 0);
        QCOMPARE(result.values.value(QStringLiteral("opened")), QStringLiteral("1"));
        QCOMPARE(readText(log), QStringLiteral("https://example.com/pricing?a=1\n"));
        // Nothing of the dump without its option.
        QVERIFY(!QFile::exists(result.values.value(QStringLiteral("dumpPath"))));
    }

    static QString nagFile(const QString& nag)
    {
        return QStringLiteral(TESTING_NAGS) + QLatin1Char('/') + nag + QStringLiteral("/main.qml");
    }

    // A nag map of the test's nags, all in mode "free": shown, for another module, for this module,
    // broken, and one the probe's factory makes nothing for.
    QString writeNagMap()
    {
        const QString striped = QUrl::fromLocalFile(nagFile(QStringLiteral("striped"))).toString();
        const QString broken = QUrl::fromLocalFile(nagFile(QStringLiteral("broken"))).toString();
        const QString row = QStringLiteral(
            R"({"mode": "free", "action": "%1", "implementation": "local", "source": "%2", "modules": [%3]})");
        const QString map =
            QStringLiteral(R"({"nags": [%1, %2, %3, %4, %5]})")
                .arg(row.arg(QStringLiteral("striped"), striped, QString()),
                     row.arg(QStringLiteral("elsewhere"), striped, QStringLiteral(R"("other")")),
                     row.arg(QStringLiteral("mine"), striped, QStringLiteral(R"("capture")")),
                     row.arg(QStringLiteral("broken"), broken, QString()),
                     row.arg(QStringLiteral("undefined"), striped, QString()));
        const QString path = m_data.filePath(QStringLiteral("nagMap.json"));
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate))
            return QString();
        file.write(map.toUtf8());
        return path;
    }

    void nagWalk_data()
    {
        QTest::addColumn<bool>("grouped");
        QTest::addColumn<bool>("fromPath");
        QTest::addColumn<QStringList>("shown");   // picture names of real nags
        QTest::addColumn<QStringList>("missing"); // placeholders
        QTest::addColumn<QString>("webUrls");     // of one locale, "%1" for the suffix
        const QString striped = QUrl::fromLocalFile(nagFile(QStringLiteral("striped"))).toString();
        const QString broken = QUrl::fromLocalFile(nagFile(QStringLiteral("broken"))).toString();
        const QString mapUrls = QStringLiteral("free-local-broken%1 : ") + broken +
                                QStringLiteral("\n\nfree-local-mine%1 : ") + striped +
                                QStringLiteral("\n\nfree-local-striped%1 : ") + striped +
                                QStringLiteral("\n\nfree-local-undefined%1 : UNDEFINED\n\n");
        const QStringList shown{QStringLiteral("free-local-mine"), QStringLiteral("free-local-striped")};
        const QStringList missing{QStringLiteral("free-local-broken"),
                                  QStringLiteral("free-local-undefined")};
        QTest::newRow("a folder per locale") << false << false << shown << missing << mapUrls;
        QTest::newRow("grouped by module") << true << false << shown << missing << mapUrls;
        QTest::newRow("one nag from a path")
            << false << true << QStringList{QStringLiteral("striped")} << QStringList{}
            << QStringLiteral("striped%1 : ") + striped + QStringLiteral("\n\n");
    }

    void nagWalk()
    {
        QFETCH(bool, grouped);
        QFETCH(bool, fromPath);
        QFETCH(QStringList, shown);
        QFETCH(QStringList, missing);
        QFETCH(QString, webUrls);
        QTemporaryDir temporary;
        // A "%0" in the root is a folder name like any other, not a place for the locale.
        const QDir dir(temporary.filePath(QStringLiteral("50%0off")));
        const QStringList locales{QStringLiteral("de_DE"), QStringLiteral("en_US")};
        QStringList options{QStringLiteral("--test-nag-screens="), QStringLiteral("--test-show-nag-delay=0"),
                            QStringLiteral("--test-custom-locales=en_US,de_DE"),
                            QStringLiteral("--test-nag-screens-dir=") + dir.path()};
        if (grouped)
            options += QStringLiteral("--test-nag-group-by-module");
        if (fromPath)
            options += QStringLiteral("--test-nag-path=") + nagFile(QStringLiteral("striped"));
        const ProbeResult result = probe(QStringLiteral("short"), options, 0,
                                         {{QStringLiteral("PROBE_NAG_MAP"), writeNagMap()},
                                          {QStringLiteral("PROBE_LOCALE"), QStringLiteral("en_US")}});
        QVERIFY(result.finished);
        QVERIFY2(result.exitCode == 0, qPrintable(result.standardError));
        QCOMPARE(result.values.value(QStringLiteral("localeAfter")), QStringLiteral("en_US"));

        const QString root = dir.filePath(QStringLiteral("NagScreenshots"));
        QString expectedHash;
        for (const QString& locale : locales) {
            const QString folder =
                grouped ? QString(root + QStringLiteral("/capture/"))
                        : QString(root + QLatin1Char('/') + locale + QStringLiteral("/capture/"));
            const QString suffix = grouped ? QLatin1Char('_') + locale : QString();
            for (const QString& nag : shown + missing) {
                const QStringList found =
                    QDir(folder).entryList({nag + suffix + QStringLiteral(".time-*.png")}, QDir::Files);
                QCOMPARE(found.size(), 1);
                const QImage picture(folder + found.first());
                if (missing.contains(nag)) {
                    QCOMPARE(picture.size(), QSize(200, 200));
                    QCOMPARE(picture.pixelColor(100, 100), QColor(Qt::magenta));
                } else {
                    QCOMPARE(picture.size(), QSize(100, 20));
                }
            }
            // The nag for another module is skipped altogether.
            QVERIFY(QDir(folder).entryList({QStringLiteral("*elsewhere*")}, QDir::Files).isEmpty());
            QCOMPARE(readText(folder + QStringLiteral("webNagUrls") + suffix + QStringLiteral(".txt")),
                     webUrls.arg(suffix));
        }
        // Names, then locales, in order; the declared "0110" against the drawn "0100".
        QStringList names;
        for (const QString& nag : shown)
            for (const QString& locale : locales)
                names += grouped ? nag + QLatin1Char('_') + locale : nag;
        names.removeDuplicates();
        names.sort();
        for (const QString& name : names) {
            expectedHash += QStringLiteral("# ") + name + QStringLiteral("  \n");
            for (const QString& locale : grouped ? QStringList{name.section(QLatin1Char('_'), -2)} : locales)
                expectedHash +=
                    QStringLiteral("## %1  \ninNagHash: 0110  \ncomputedHash: 0100  \ndistance: 1  \n"
                                   "distance (%): 25  \n")
                        .arg(locale);
        }
        QCOMPARE(readText(root + QStringLiteral("/capture/NagHash.md")), expectedHash);
    }

    // The nags of the product's own map render (no placeholder) in the walk.
    void sampleNagsAreShown()
    {
        QTemporaryDir dir;
        const ProbeResult result =
            probe(QStringLiteral("short"),
                  {QStringLiteral("--test-nag-screens=app_close"), QStringLiteral("--test-show-nag-delay=0"),
                   QStringLiteral("--test-custom-locales=en_US"),
                   QStringLiteral("--test-nag-screens-dir=") + dir.path()});
        QVERIFY(result.finished);
        QVERIFY2(result.exitCode == 0, qPrintable(result.standardError));
        const QDir folder(dir.filePath(QStringLiteral("NagScreenshots/en_US/capture")));
        const QStringList pictures = folder.entryList({QStringLiteral("*.png")}, QDir::Files, QDir::Name);
        QCOMPARE(pictures.size(), 2);
        QVERIFY(pictures.at(0).startsWith(QStringLiteral("free-local-app_close.time-")));
        QVERIFY(pictures.at(1).startsWith(QStringLiteral("trial-local-app_close.time-")));
        for (const QString& name : pictures)
            QVERIFY(QImage(folder.filePath(name)).size() != QSize(200, 200));
    }

    void unwritablePictureFolderEndsTheRun()
    {
        QTemporaryDir dir;
        const QString blocker = dir.filePath(QStringLiteral("file"));
        QFile file(blocker);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.close();
        const ProbeResult result =
            probe(QStringLiteral("short"),
                  {QStringLiteral("--test-nag-screens=app_close"), QStringLiteral("--test-show-nag-delay=0"),
                   QStringLiteral("--test-custom-locales=en_US"),
                   QStringLiteral("--test-nag-screens-dir=") + blocker});
        QVERIFY(result.finished);
        QCOMPARE(result.exitStatus, QProcess::CrashExit);
        QVERIFY2(
            result.standardError.contains(QStringLiteral("Exception has been caught in event processing")),
            qPrintable(result.standardError));
        QVERIFY(result.standardError.contains(QStringLiteral("Can't open picture file")));
        QVERIFY(result.standardError.contains(QStringLiteral("App/Application/Testing/TestNagContext")));
    }

    void hashReport()
    {
        NagHashTable table;
        table[QStringLiteral("b")][QStringLiteral("en_US")] = {QStringLiteral("0110"),
                                                               QStringLiteral("0011")};
        table[QStringLiteral("b")][QStringLiteral("de_DE")] = {QStringLiteral("01"), QStringLiteral("0111")};
        table[QStringLiteral("a")][QStringLiteral("ru_RU")] = {QStringLiteral("1"), QString()};
        table[QStringLiteral("c")][QStringLiteral("ru_RU")] = {QString(), QStringLiteral("0101")};
        QCOMPARE(NagHashReport(table),
                 QStringLiteral("# a  \n## ru_RU  \ninNagHash: 1  \ncomputedHash:   \n"
                                "distance: 0  \ndistance (%): nan  \n"
                                "# b  \n## de_DE  \ninNagHash: 01  \ncomputedHash: 0111  \n"
                                "distance: 2  \ndistance (%): 50  \n"
                                "## en_US  \ninNagHash: 0110  \ncomputedHash: 0011  \n"
                                "distance: 2  \ndistance (%): 50  \n"
                                "# c  \n## ru_RU  \ninNagHash:   \ncomputedHash: 0101  \n"
                                "distance: -  \ndistance (%): -  \n"));
    }

    // The core in this process: its registration and its start, without a command line of interest.
    void aNullLifetimeManagerRaises()
    {
        try {
            Testing testing(nullptr);
            QFAIL("no exception");
        } catch (const std::logic_error& error) {
            QCOMPARE(QString::fromUtf8(error.what()), QStringLiteral("NotNull can not initialized by null"));
        }
    }

    void aTestAddedAfterTheStartOnlyInitializes()
    {
        const auto lifetime = std::make_shared<LifetimeManager>();
        Testing testing(lifetime);
        const auto early = std::make_shared<RecordingTest>();
        testing.addTest(early);
        QCOMPARE(early->initialized, 1);
        QCOMPARE(early->runs, 0);
        lifetime->start();
        QCOMPARE(early->runs, 1);
        const auto late = std::make_shared<RecordingTest>();
        testing.addTest(late);
        QCOMPARE(late->initialized, 1);
        QCOMPARE(late->runs, 0);
        QCOMPARE(early->initialized, 1);
    }

    void aThrowingInitializePassesThroughAndTheTestStays()
    {
        const auto lifetime = std::make_shared<LifetimeManager>();
        Testing testing(lifetime);
        const auto throwing = std::make_shared<RecordingTest>(true);
        QVERIFY_EXCEPTION_THROWN(testing.addTest(throwing), std::runtime_error);
        const auto next = std::make_shared<RecordingTest>();
        testing.addTest(next);
        lifetime->start();
        QCOMPARE(throwing->runs, 1);
        QCOMPARE(next->runs, 1);
    }
};

OSTREL_TEST_MAIN(TestingHarnessTest)
#include "tst_testing.moc"
