// The built-in test harness, driven through its command line in a child process (testing_probe).

#include "TestEnvironment.h"
#include "TestingProbe.h"

#include "FakeCustomization.h"
#include "FakeHardware.h"
#include "FakeLaunchType.h"
#include "MemorySettings.h"

#include "App/Application/LookAndFeelManager.h"
#include "App/Application/Testing/TestNagContext_p.h"
#include "Core/LinksManager.h"
#include "Interfaces/URLKeys.h"

#include <QApplication>
#include <QTemporaryDir>

#include <csignal>

using namespace Ostrel;
using namespace Ostrel::App;
using namespace Ostrel::Test;

namespace {

// The option table as the help dialog must list it: first names only, registration order, the
// crash texts filled in.
const char* const kFullHelp =
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
    "--test-nag-helper Show nag executer window\n"
    "--test-custom-locales Set locales: en_US,ru_RU\n";

// The sample nags of the built-in map walked in every mode ("app_start" is "any_mode" only).
const QStringList kSampleNags{QStringLiteral("free-local-app_close"), QStringLiteral("free-local-before_routine"),
                              QStringLiteral("trial-local-app_close"), QStringLiteral("trial-local-before_routine")};

QStringList sorted(QStringList list)
{
    list.sort();
    return list;
}

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
        return file.open(QIODevice::ReadOnly | QIODevice::Text) ? QString::fromUtf8(file.readAll()) : QStringLiteral("<missing>");
    }

private slots:
    void helpListsEveryOptionOnce_data()
    {
        QTest::addColumn<QString>("scenario");
        QTest::addColumn<QString>("expected");
        const QString full = QString::fromUtf8(kFullHelp);
        // Before Testing::initialize only the constructor's tests and the host's connection test exist.
        QTest::newRow("before initialize") << QStringLiteral("core") << full.section(QLatin1Char('\n'), 0, 6) + QLatin1Char('\n');
        QTest::newRow("all tests") << QStringLiteral("full") << full;
    }

    void helpListsEveryOptionOnce()
    {
        QFETCH(QString, scenario);
        QFETCH(QString, expected);
        const ProbeResult result = probe(scenario, {QStringLiteral("--test-help"), QStringLiteral("--host-own-option")});
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
        const QString conflict = QStringLiteral("Invalid options combination: test-ssl-disable and test-ssl-enable");
        QTest::newRow("no option") << QStringList{} << "1" << false << QString();
        QTest::newRow("ssl disabled") << QStringList{QStringLiteral("--test-ssl-disable")} << "0" << false << QString();
        QTest::newRow("alias") << QStringList{QStringLiteral("--ssl-disable")} << "0" << false << QString();
        QTest::newRow("ssl enabled") << QStringList{QStringLiteral("--ssl-enable")} << "1" << false << QString();
        QTest::newRow("enable with disable alias")
            << QStringList{QStringLiteral("--test-ssl-enable"), QStringLiteral("--ssl-disable")} << QString() << false
            << conflict;
        QTest::newRow("internet off, any value") << QStringList{QStringLiteral("--test-internet-disable=x")} << "1"
                                                 << true << QString();
        // A value-taking option last without its value is a parse error, ignored: not set.
        QTest::newRow("internet option without value")
            << QStringList{QStringLiteral("--test-ssl-disable"), QStringLiteral("--test-internet-disable")} << "0"
            << false << QString();
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
        QCOMPARE(result.values.value(QStringLiteral("checkerReplaced")), offline ? QStringLiteral("1") : QStringLiteral("0"));
        QCOMPARE(result.values.value(QStringLiteral("checkerOnline")), offline ? QStringLiteral("0") : QStringLiteral("1"));
    }

    void crash_data()
    {
        QTest::addColumn<QStringList>("options");
        QTest::addColumn<int>("signal");       // 0: the process survives
        QTest::addColumn<int>("notBeforeMs");
        QTest::addColumn<QString>("logLine");
        QTest::newRow("default: segfault in the background")
            << QStringList{QStringLiteral("--test-crash-after=700")} << int(SIGSEGV) << 700 << QString();
        QTest::newRow("segfault on the main thread")
            << QStringList{QStringLiteral("--test-crash-after=300"), QStringLiteral("--test-crash-thread=main")}
            << int(SIGSEGV) << 300 << QString();
        QTest::newRow("exception on the main thread passes the event guard")
            << QStringList{QStringLiteral("--test-crash-after=500"), QStringLiteral("--test-crash-reason=exception"),
                           QStringLiteral("--test-crash-thread=main")}
            << int(SIGABRT) << 500 << QStringLiteral("Exception has been caught in event processing");
        QTest::newRow("exception in the background")
            << QStringList{QStringLiteral("--test-crash-after=0"), QStringLiteral("--test-crash-reason=exception")}
            << int(SIGABRT) << 0 << QStringLiteral("Exception from test-crash-after");
        QTest::newRow("not a number is 0") << QStringList{QStringLiteral("--test-crash-after=abc")} << int(SIGSEGV) << 0
                                           << QString();
        QTest::newRow("wrong case")
            << QStringList{QStringLiteral("--test-crash-after=5"), QStringLiteral("--test-crash-reason=Segfault")} << 0
            << 0 << QStringLiteral("Segfault isn't supported value for test-crash-reason");
        QTest::newRow("unknown thread")
            << QStringList{QStringLiteral("--test-crash-after=5"), QStringLiteral("--test-crash-thread=worker")} << 0
            << 0 << QStringLiteral("worker isn't supported value for test-crash-thread");
        QTest::newRow("reason alone arms nothing")
            << QStringList{QStringLiteral("--test-crash-reason=exception")} << 0 << 0 << QString();
        QTest::newRow("timeout option last without value")
            << QStringList{QStringLiteral("--test-crash-after")} << 0 << 0 << QString();
    }

    void crash()
    {
        QFETCH(QStringList, options);
        QFETCH(int, signal);
        QFETCH(int, notBeforeMs);
        QFETCH(QString, logLine);
        const int stayMs = 3000;
        const ProbeResult result = probe(QStringLiteral("core"), options, stayMs);
        QVERIFY(result.finished);
        if (!logLine.isEmpty())
            QVERIFY2(result.standardError.contains(logLine), qPrintable(result.standardError));
        if (signal == 0) {
            QCOMPARE(result.exitStatus, QProcess::NormalExit);
            QCOMPARE(result.exitCode, 0);
            QVERIFY(result.values.contains(QStringLiteral("survived")));
            return;
        }
        QCOMPARE(result.exitStatus, QProcess::CrashExit);
        QCOMPARE(result.exitCode, signal);
        QVERIFY(!result.values.contains(QStringLiteral("survived")));
        // The process started before the harness did, so the whole run is at least the delay.
        QVERIFY2(result.elapsedMs >= notBeforeMs, qPrintable(QString::number(result.elapsedMs)));
        QVERIFY2(result.elapsedMs < notBeforeMs + stayMs, qPrintable(QString::number(result.elapsedMs)));
    }

    void urlDump_data()
    {
        QTest::addColumn<QString>("wanted");
        QTest::addColumn<QStringList>("locales");
        QTest::newRow("one locale") << QStringLiteral("ru_RU") << QStringList{QStringLiteral("ru_RU")};
        QTest::newRow("order of the option doesn't matter")
            << QStringLiteral("fr_FR,xx_XX,en_US,") << QStringList{QStringLiteral("en_US"), QStringLiteral("fr_FR")};
        QTest::newRow("only locales that aren't installed") << QStringLiteral("xx_XX,yy_YY") << QStringList{};
        QTest::newRow("all installed") << QString() << QStringList{};
    }

    void urlDump()
    {
        QFETCH(QString, wanted);
        QFETCH(QStringList, locales);
        QStringList options{QStringLiteral("--test-dump-urls")};
        if (!wanted.isEmpty())
            options += QStringLiteral("--test-custom-locales=") + wanted;
        const ProbeResult result = probe(QStringLiteral("full"), options, 0, {{QStringLiteral("PROBE_LOCALE"), QStringLiteral("de_DE")}});
        QVERIFY(result.finished);
        QCOMPARE(result.exitCode, 0);
        QCOMPARE(result.values.value(QStringLiteral("localeBefore")), QStringLiteral("de_DE"));
        QCOMPARE(result.values.value(QStringLiteral("localeAfter")), QStringLiteral("de_DE"));

        // The same links, made here, in the order the harness walks: installed order, with the
        // three main locales first.
        const auto lookAndFeel = std::make_shared<LookAndFeelManager>(
            Core::ioPath(QStringLiteral(OSTREL_BUILD_ROOT)), "theme.title",
            std::list<std::string>{"base", "controls", "ostrel"}, std::list<std::string>());
        lookAndFeel->Initialize("en_US", "dark");
        if (wanted.isEmpty()) {
            const QStringList first{QStringLiteral("ru_RU"), QStringLiteral("de_DE"), QStringLiteral("en_US")};
            QStringList rest;
            for (const std::string& locale : lookAndFeel->GetLocales())
                (first.contains(QString::fromStdString(locale)) ? locales : rest) += QString::fromStdString(locale);
            locales += rest;
            QCOMPARE(locales.size(), 14);
        }
        LinksManager links(std::make_shared<FakeCustomization>(), std::make_shared<FakeHardware>(), lookAndFeel,
                           std::make_shared<MemoryMailSettings>(), std::make_shared<MemoryProductSettings>(),
                           std::make_shared<MemoryUserSettings>(), std::make_shared<FakeLaunchType>(), nullptr,
                           std::make_shared<MemoryInstallerSettings>());
        QStringList expected;
        QSet<QString> firstColumn;
        for (const QString& locale : locales) {
            lookAndFeel->SetLocale(locale.toStdString());
            for (const auto& [key, name] : UrlKeyNames()) {
                const QString url = links.GetUrl(key);
                if (!url.isEmpty())
                    expected += locale + QLatin1Char(';') + QString::fromStdString(name) + QLatin1Char(';') + url + QLatin1Char(';');
            }
        }
        const QString path = result.values.value(QStringLiteral("dumpPath"));
        QVERIFY(path.endsWith(QStringLiteral("/capture-url-dump.csv")));
        QString text = readText(path);
        QVERIFY(text.isEmpty() || text.endsWith(QLatin1Char('\n')));
        text.chop(1);
        const QStringList lines = text.isEmpty() ? QStringList{} : text.split(QLatin1Char('\n'));
        QCOMPARE(lines.size(), expected.size());
        for (int i = 0; i < lines.size(); ++i)
            QCOMPARE(lines.at(i), expected.at(i));
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
        QCOMPARE(result.decoded(QStringLiteral("dialog")), QStringLiteral("Can't open file to dump: ") + path);
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

    void nagWalk_data()
    {
        QTest::addColumn<bool>("grouped");
        QTest::newRow("a folder per locale") << false;
        QTest::newRow("grouped by module") << true;
    }

    void nagWalk()
    {
        QFETCH(bool, grouped);
        QTemporaryDir dir;
        const QStringList locales{QStringLiteral("ru_RU"), QStringLiteral("de_DE"), QStringLiteral("en_US")};
        QStringList options{QStringLiteral("--test-nag-screens="), QStringLiteral("--test-show-nag-delay=20"),
                            QStringLiteral("--test-custom-locales=en_US,de_DE,ru_RU"),
                            QStringLiteral("--test-nag-screens-dir=") + dir.path()};
        if (grouped)
            options += QStringLiteral("--test-nag-group-by-module");
        const ProbeResult result = probe(QStringLiteral("full"), options);
        QVERIFY(result.finished);
        QVERIFY2(result.exitCode == 0, qPrintable(result.standardError));
        QCOMPARE(result.values.value(QStringLiteral("localeAfter")), QStringLiteral("en_US"));

        const QString root = dir.filePath(QStringLiteral("NagScreenshots"));
        QString expectedHash;
        for (const QString& locale : locales) {
            const QString folder = grouped ? QString(root + QStringLiteral("/capture/"))
                                           : QString(root + QLatin1Char('/') + locale + QStringLiteral("/capture/"));
            const QString suffix = grouped ? QLatin1Char('_') + locale : QString();
            QStringList pictures;
            QString webUrls;
            for (const QString& nag : kSampleNags) {
                const QString name = nag + suffix;
                const QStringList found = QDir(folder).entryList({name + QStringLiteral(".time-*.png")}, QDir::Files);
                QCOMPARE(found.size(), 1);
                QImage picture(folder + found.first());
                QVERIFY(!picture.isNull());
                // A real nag, not the placeholder.
                QVERIFY(picture.size() != QSize(200, 200));
                const QString action = nag.section(QLatin1Char('-'), 2);
                webUrls += name + QStringLiteral(" : qrc:/NagScreen/") + action + QStringLiteral("/main.qml\n\n");
            }
            QCOMPARE(readText(folder + QStringLiteral("webNagUrls") + suffix + QStringLiteral(".txt")), webUrls);
        }
        // The sample nags declare no hash and no hash size: "-" for both distances.
        QStringList names;
        for (const QString& nag : kSampleNags)
            for (const QString& locale : locales)
                names += grouped ? nag + QLatin1Char('_') + locale : nag;
        names.removeDuplicates();
        for (const QString& name : sorted(names)) {
            expectedHash += QStringLiteral("# ") + name + QStringLiteral("  \n");
            for (const QString& locale : sorted(grouped ? QStringList{name.section(QLatin1Char('_'), -2)} : locales))
                expectedHash += QStringLiteral("## %1  \ninNagHash:   \ncomputedHash:   \ndistance: -  \ndistance (%): -  \n").arg(locale);
        }
        QCOMPARE(readText(root + QStringLiteral("/capture/NagHash.md")), expectedHash);
    }

    void unwritablePictureFolderEndsTheRun()
    {
        QTemporaryDir dir;
        const QString blocker = dir.filePath(QStringLiteral("file"));
        QFile file(blocker);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.close();
        const ProbeResult result =
            probe(QStringLiteral("full"), {QStringLiteral("--test-nag-screens=app_close"), QStringLiteral("--test-show-nag-delay=0"),
                                           QStringLiteral("--test-custom-locales=en_US"),
                                           QStringLiteral("--test-nag-screens-dir=") + blocker});
        QVERIFY(result.finished);
        QCOMPARE(result.exitStatus, QProcess::CrashExit);
        QVERIFY2(result.standardError.contains(QStringLiteral("Exception has been caught in event processing")),
                 qPrintable(result.standardError));
        QVERIFY(result.standardError.contains(QStringLiteral("Can't open picture file")));
        QVERIFY(result.standardError.contains(QStringLiteral("App/Application/Testing/TestNagContext")));
    }

    void hashReport()
    {
        NagHashTable table;
        table[QStringLiteral("b")][QStringLiteral("en_US")] = {QStringLiteral("0110"), QStringLiteral("0011")};
        table[QStringLiteral("b")][QStringLiteral("de_DE")] = {QStringLiteral("01"), QStringLiteral("0111")};
        table[QStringLiteral("a")][QStringLiteral("ru_RU")] = {QStringLiteral("1"), QString()};
        table[QStringLiteral("c")][QStringLiteral("ru_RU")] = {QString(), QStringLiteral("0101")};
        QCOMPARE(NagHashReport(table), QStringLiteral("# a  \n## ru_RU  \ninNagHash: 1  \ncomputedHash:   \n"
                                                      "distance: 0  \ndistance (%): nan  \n"
                                                      "# b  \n## de_DE  \ninNagHash: 01  \ncomputedHash: 0111  \n"
                                                      "distance: 2  \ndistance (%): 50  \n"
                                                      "## en_US  \ninNagHash: 0110  \ncomputedHash: 0011  \n"
                                                      "distance: 2  \ndistance (%): 50  \n"
                                                      "# c  \n## ru_RU  \ninNagHash:   \ncomputedHash: 0101  \n"
                                                      "distance: -  \ndistance (%): -  \n"));
    }
};

OSTREL_TEST_MAIN(TestingHarnessTest)
#include "tst_testing.moc"
