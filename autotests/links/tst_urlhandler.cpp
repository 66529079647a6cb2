// The process-wide URL handler with a real started process: a stub browser records the
// arguments it got; the reports to tracking are compared in full.

#include "App/Application/IBrowserSources.h"
#include "App/Application/PreferredBrowser.h"
#include "App/Application/URLHandler.h"
#include "Tracking/ApplicationTrackerFactory.h"

#include "NoBrowserSources.h"
#include "RecordingTracker.h"
#include "TestEnvironment.h"

#include <QDesktopServices>
#include <QFile>
#include <QTemporaryDir>

using namespace Ostrel;
using namespace Ostrel::App;
using namespace Ostrel::Test;

namespace {

using Params = std::map<std::string, std::string>;

} // namespace

class TestUrlHandler : public QObject
{
    Q_OBJECT

    QTemporaryDir dir;
    QString record;
    std::shared_ptr<RecordingTracker> tracker;
    std::unique_ptr<PreferredBrowser> browser;
    std::unique_ptr<URLHandler> handler;
    QString browserPath;
    int asked = 0;
    int run = 0;

    // The offscreen platform has no browser of its own and says so.
    static void expectSystemBrowser(const char* url)
    {
        Test::ignoreMessage(
            QtWarningMsg,
            QStringLiteral("This plugin does not support QPlatformServices::openUrl() for '%1'.")
                .arg(QLatin1String(url)));
    }

    // The argument lists the stub got so far, waiting for `count` of them.
    QList<QStringList> starts(int count)
    {
        QList<QStringList> result;
        const auto read = [&]() {
            result.clear();
            QFile file(record);
            if (!file.open(QIODevice::ReadOnly))
                return false;
            QStringList current;
            for (const QByteArray& line : file.readAll().split('\n')) {
                if (line == "--end--") {
                    result << current;
                    current.clear();
                } else if (!line.isEmpty()) {
                    current << QString::fromUtf8(line);
                }
            }
            return result.size() >= count;
        };
        [&]() { QTRY_VERIFY_WITH_TIMEOUT(read(), 10000); }();
        return result;
    }

    // As every part of the product does; the handler's own fallbacks then reach the system.
    static void open(const QUrl& url) { QDesktopServices::openUrl(url); }

    Params report(int index) const
    {
        const auto events = tracker->events();
        if (index >= static_cast<int>(events.size()) || events[index].name != "URL_OPEN")
            return {{"<no URL_OPEN>", std::to_string(index)}};
        return events[index].params;
    }

private slots:
    void init()
    {
        QVERIFY(dir.isValid());
        record = dir.filePath(QStringLiteral("starts-%1.txt").arg(++run));
        qputenv("OSTREL_BROWSER_STUB_RECORD", QFile::encodeName(record));
        tracker = std::make_shared<RecordingTracker>();
        Tracking::ApplicationTrackerFactory::setApplicationTracker(tracker);
        browserPath = QStringLiteral(BROWSER_STUB);
        asked = 0;
        qunsetenv("BROWSER");
        browser = std::make_unique<PreferredBrowser>(nullptr, std::make_shared<NoBrowserSources>());
        browser->SetContextCallback([this]() {
            ++asked;
            return AbstractPreferredBrowser::PreferredBrowserContext{QString(), QString(), browserPath};
        });
        handler = std::make_unique<URLHandler>(QCoreApplication::instance(), *browser);
    }

    void cleanup()
    {
        handler.reset();
        browser.reset();
        Tracking::ApplicationTrackerFactory::setApplicationTracker(nullptr);
    }

    void opensInThePreferredBrowser()
    {
        // Characters a shell would act on arrive untouched: the URL is one argument of a process.
        const QString url =
            QStringLiteral("https://link.ostrel.com/faq/?asrc=menu&q=$(touch%20x);%60y%60&z=%C3%A9");
        QVERIFY(QDesktopServices::openUrl(QUrl(url)));
        QCOMPARE(starts(1), (QList<QStringList>{{QUrl(url).toString()}}));
        tracker->clear(); // the PREFERRED_BROWSER of the first search
        QVERIFY(QDesktopServices::openUrl(QUrl(QStringLiteral("http://example.org/a%20b"))));
        QCOMPARE(starts(2).size(), 2);
        const Params expected = {{"STATUS", "SUCCESS"},
                                 {"BROWSER_PATH", BROWSER_STUB},
                                 {"DEFAULT_BROWSER", "NO"},
                                 {"NAVIGATE_URL", "http://example.org/a b"},
                                 {"SOURCE", "example.org"},
                                 {"URI", "/a b"},
                                 {"ARGS", ""}};
        QCOMPARE(report(0), expected);
        QCOMPARE(asked, 1);
    }

    void reportOfAQuery()
    {
        open(QUrl(QStringLiteral("https://h.example/p%C3%A4th?x=1&y=%C3%A9")));
        starts(1);
        const auto params = report(1);
        QCOMPARE(params.at("NAVIGATE_URL"), std::string("https://h.example/päth?x=1&y=é"));
        QCOMPARE(params.at("URI"), std::string("/päth"));
        QCOMPARE(params.at("ARGS"), std::string("x=1&y=é"));
    }

    void noPreferredBrowserStaysWithTheSystem()
    {
        browserPath.clear();
        expectSystemBrowser("https://example.org/one");
        expectSystemBrowser("https://example.org/two");
        open(QUrl(QStringLiteral("https://example.org/one")));
        browserPath = QStringLiteral(BROWSER_STUB); // found later: the flag keeps the system's browser
        open(QUrl(QStringLiteral("https://example.org/two")));
        QCOMPARE(asked, 1);
        QVERIFY(!QFile::exists(record));
        const auto events = tracker->events();
        QCOMPARE(events.size(), size_t(3)); // PREFERRED_BROWSER, then two URL_OPEN
        for (int i : {1, 2}) {
            QCOMPARE(report(i).at("DEFAULT_BROWSER"), std::string("YES"));
            QCOMPARE(report(i).at("BROWSER_PATH"), std::string());
        }
        // The offscreen platform opens nothing by itself.
        QCOMPARE(report(2).at("STATUS"), std::string("FAIL"));
        QCOMPARE(report(2).at("NAVIGATE_URL"), std::string("https://example.org/two"));
    }

    // Without a preferred browser, $BROWSER as Python's webbrowser reads it, before the desktop's.
    void browserVariable_data()
    {
        QTest::addColumn<QString>("variable");
        QTest::addColumn<QStringList>("arguments");
        const QString url = QStringLiteral("https://example.org/?a=1&b=%C3%A9");
        QTest::newRow("a program") << QStringLiteral("STUB") << QStringList{url};
        QTest::newRow("%s stands for the URL")
            << QStringLiteral("STUB --new-window %s") << QStringList{QStringLiteral("--new-window"), url};
        QTest::newRow("inside a word") << QStringLiteral("\"STUB\" --url=%s") << QStringList{"--url=" + url};
        QTest::newRow("the first that exists")
            << QStringLiteral(":/no/such/browser %s:STUB") << QStringList{url};
    }

    void browserVariable()
    {
        QFETCH(QString, variable);
        QFETCH(QStringList, arguments);
        browserPath.clear();
        qputenv("BROWSER", variable.replace(QLatin1String("STUB"), QStringLiteral(BROWSER_STUB)).toUtf8());
        open(QUrl(QStringLiteral("https://example.org/?a=1&b=%C3%A9")));
        QCOMPARE(starts(1), (QList<QStringList>{arguments}));
        QCOMPARE(report(1).at("DEFAULT_BROWSER"), std::string("NO"));
        QCOMPARE(report(1).at("BROWSER_PATH"), std::string(BROWSER_STUB));
    }

    void browserThatFailsToStart()
    {
        browserPath = dir.filePath(QStringLiteral("not-a-program.exe"));
        QFile file(browserPath);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.close();
        expectSystemBrowser("https://example.org/");
        open(QUrl(QStringLiteral("https://example.org/")));
        const Params expected = {{"STATUS", "FAIL"},
                                 {"BROWSER_PATH", browserPath.toStdString()},
                                 {"DEFAULT_BROWSER", "YES"},
                                 {"NAVIGATE_URL", "https://example.org/"},
                                 {"SOURCE", "example.org"},
                                 {"URI", "/"},
                                 {"ARGS", ""}};
        QCOMPARE(report(1), expected);
        // Not sticky: the browser is tried again, and once it works, it is used.
        QFile::remove(browserPath);
        QVERIFY(QFile::copy(QStringLiteral(BROWSER_STUB), browserPath));
        open(QUrl(QStringLiteral("https://example.org/again")));
        QCOMPARE(starts(1), (QList<QStringList>{{QStringLiteral("https://example.org/again")}}));
        QCOMPARE(report(2).at("DEFAULT_BROWSER"), std::string("NO"));
    }

    void vanishedBrowserIsSearchedAgain()
    {
        const QString copy = dir.filePath(QStringLiteral("copy-of-stub"));
        QVERIFY(QFile::copy(QStringLiteral(BROWSER_STUB), copy));
        browserPath = copy;
        open(QUrl(QStringLiteral("https://example.org/1")));
        starts(1);
        QFile::remove(copy);
        browserPath = QStringLiteral(BROWSER_STUB);
        open(QUrl(QStringLiteral("https://example.org/2")));
        starts(2);
        QCOMPARE(asked, 2);
        QCOMPARE(tracker->events().back().params.at("BROWSER_PATH"), std::string(BROWSER_STUB));
    }

    void withoutTrackerTheBrowserStillOpens()
    {
        Tracking::ApplicationTrackerFactory::setApplicationTracker(nullptr);
        open(QUrl(QStringLiteral("https://example.org/quiet")));
        QCOMPARE(starts(1), (QList<QStringList>{{QStringLiteral("https://example.org/quiet")}}));
        QVERIFY(tracker->events().empty());
    }

    void destroyedHandlerGivesTheSchemesBack()
    {
        handler.reset();
        expectSystemBrowser("https://example.org/after");
        QDesktopServices::openUrl(QUrl(QStringLiteral("https://example.org/after")));
        QVERIFY(tracker->events().empty());
    }
};

OSTREL_TEST_MAIN(TestUrlHandler)
#include "tst_urlhandler.moc"
