// The search for the preferred browser over a registry in memory, with real files standing in
// for the executables; what is stored and reported.

#include "App/Application/IBrowserSources.h"
#include "App/Application/PreferredBrowser.h"
#include "Tracking/ApplicationTrackerFactory.h"

#include "MemorySettings.h"
#include "RecordingTracker.h"
#include "TestEnvironment.h"
#include "TestFiles.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

using namespace Ostrel;
using namespace Ostrel::App;
using namespace Ostrel::Test;

namespace {

const QString MuiCache = QStringLiteral(
    "HKEY_CURRENT_USER\\Software\\Classes\\Local Settings\\Software\\Microsoft\\Windows\\Shell\\MuiCache");
const QString UserClients = QStringLiteral("HKEY_CURRENT_USER\\SOFTWARE\\Clients\\StartMenuInternet");
const QString MachineClients = QStringLiteral("HKEY_LOCAL_MACHINE\\SOFTWARE\\Clients\\StartMenuInternet");

class FakeRegistry : public IBrowserSources
{
public:
    std::map<QString, QString> processes;
    std::map<QString, QStringList> values;
    std::map<QString, QStringList> children;
    std::map<QString, QString> defaults;

    void registerBrowser(const QString& root, const QString& subkey, const QString& command)
    {
        children[root] << subkey;
        defaults[root + QLatin1Char('\\') + subkey + QStringLiteral("\\shell\\open\\command")] = command;
    }

    std::map<QString, QString> processMap() const override { return processes; }
    QStringList valueNames(const QString& key) const override { return lookup(values, key); }
    QStringList subkeys(const QString& key) const override { return lookup(children, key); }
    QString defaultValue(const QString& key) const override { return lookup(defaults, key); }

private:
    template <class T> static T lookup(const std::map<QString, T>& map, const QString& key)
    {
        const auto found = map.find(key);
        return found == map.end() ? T() : found->second;
    }
};

class Browser : public PreferredBrowser
{
public:
    using PreferredBrowser::FindPath;
    using PreferredBrowser::PreferredBrowser;
};

} // namespace

class TestBrowser : public QObject
{
    Q_OBJECT

    QTemporaryDir dir;
    std::shared_ptr<FakeRegistry> registry;
    std::shared_ptr<MemoryProductSettings> settings;
    std::shared_ptr<RecordingTracker> tracker;

    QString executable(const QString& relative)
    {
        const QString path = dir.filePath(relative);
        QDir().mkpath(QFileInfo(path).path());
        QFile file(path);
        file.open(QIODevice::WriteOnly);
        return path;
    }

    QString find(const QString& name)
    {
        Browser browser(settings, registry);
        return browser.FindPath({QString(), name, QString()});
    }

private slots:
    void init()
    {
        QVERIFY(dir.isValid());
        registry = std::make_shared<FakeRegistry>();
        settings = std::make_shared<MemoryProductSettings>();
        tracker = std::make_shared<RecordingTracker>();
        Tracking::ApplicationTrackerFactory::setApplicationTracker(tracker);
    }

    void cleanup() { Tracking::ApplicationTrackerFactory::setApplicationTracker(nullptr); }

    void runningBrowserWinsOverTheRegistry()
    {
        const QString running = executable(QStringLiteral("run/chrome.exe"));
        registry->processes[QStringLiteral("chrome.exe")] = running;
        registry->values[MuiCache] << executable(QStringLiteral("mui/chrome.exe")) +
                                          QStringLiteral(".FriendlyAppName");
        QCOMPARE(find(QStringLiteral("chrome.exe")), running);
        // A running process whose file is gone doesn't count.
        QFile::remove(running);
        QCOMPARE(find(QStringLiteral("chrome.exe")), dir.filePath(QStringLiteral("mui/chrome.exe")));
    }

    void noNameNoSearch()
    {
        registry->processes[QStringLiteral("chrome.exe")] = executable(QStringLiteral("chrome.exe"));
        registry->registerBrowser(UserClients, QStringLiteral("Chrome"),
                                  executable(QStringLiteral("chrome.exe")));
        QCOMPARE(find(QString()), QString());
    }

    void muiCacheNames_data()
    {
        QTest::addColumn<QStringList>("valueNames");
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("expected");
        QTest::newRow("suffix behind the .exe")
            << QStringList{QStringLiteral("a/firefox.exe.FriendlyAppName")} << QStringLiteral("firefox.exe")
            << QStringLiteral("a/firefox.exe");
        QTest::newRow("cut at the last .exe")
            << QStringList{QStringLiteral("b.exe.dir/firefox.exe.ApplicationCompany")}
            << QStringLiteral("firefox.exe") << QStringLiteral("b.exe.dir/firefox.exe");
        QTest::newRow("file name folded, name not")
            << QStringList{QStringLiteral("c/FireFox.exe.FriendlyAppName")} << QStringLiteral("firefox.exe")
            << QStringLiteral("c/FireFox.exe");
        QTest::newRow("name in capitals") << QStringList{QStringLiteral("a/firefox.exe.FriendlyAppName")}
                                          << QStringLiteral("Firefox.exe") << QString();
        QTest::newRow(".EXE is no .exe") << QStringList{QStringLiteral("d/firefox.EXE.FriendlyAppName")}
                                         << QStringLiteral("firefox.exe") << QString();
        QTest::newRow("missing file") << QStringList{QStringLiteral("gone/firefox.exe.FriendlyAppName")}
                                      << QStringLiteral("firefox.exe") << QString();
    }

    void muiCacheNames()
    {
        QFETCH(QStringList, valueNames);
        QFETCH(QString, name);
        QFETCH(QString, expected);
        for (const QString& file : {QStringLiteral("a/firefox.exe"), QStringLiteral("b.exe.dir/firefox.exe"),
                                    QStringLiteral("c/FireFox.exe"), QStringLiteral("d/firefox.EXE")})
            executable(file);
        for (const QString& value : valueNames)
            registry->values[MuiCache] << dir.filePath(value);
        QCOMPARE(find(name), expected.isEmpty() ? QString() : dir.filePath(expected));
    }

    void registeredBrowsers_data()
    {
        QTest::addColumn<QString>("command");
        QTest::addColumn<QString>("name");
        QTest::addColumn<bool>("found");
        QTest::newRow("quoted path") << QStringLiteral("\"%1\"") << QStringLiteral("msedge.exe") << true;
        QTest::newRow("arguments behind the path")
            << QStringLiteral("\"%1\" --single-argument %%1") << QStringLiteral("msedge.exe") << false;
        QTest::newRow("name in capitals") << QStringLiteral("%1") << QStringLiteral("MSEdge.EXE") << true;
        QTest::newRow("other browser") << QStringLiteral("%1") << QStringLiteral("chrome.exe") << false;
    }

    void registeredBrowsers()
    {
        QFETCH(QString, command);
        QFETCH(QString, name);
        QFETCH(bool, found);
        const QString path = executable(QStringLiteral("Edge/MSEDGE.exe"));
        registry->registerBrowser(MachineClients, QStringLiteral("Microsoft Edge"), command.arg(path));
        QCOMPARE(find(name), found ? path : QString());
    }

    void currentUserBeforeMachine()
    {
        const QString mine = executable(QStringLiteral("user/firefox.exe"));
        registry->registerBrowser(MachineClients, QStringLiteral("FIREFOX.EXE"),
                                  executable(QStringLiteral("m/firefox.exe")));
        registry->registerBrowser(UserClients, QStringLiteral("Other"),
                                  executable(QStringLiteral("u/opera.exe")));
        registry->registerBrowser(UserClients, QStringLiteral("FIREFOX.EXE"), mine);
        QCOMPARE(find(QStringLiteral("firefox.exe")), mine);
    }

    void initStoresAndReports_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<bool>("storedExists");
        QTest::addColumn<QString>("expectedPath");
        QTest::addColumn<QString>("code");
        QTest::addColumn<QString>("browser");
        QTest::newRow("stored path, no name")
            << QString() << true << QStringLiteral("stored/chrome.exe") << QString() << QString();
        QTest::newRow("stored path gone")
            << QString() << false << QString() << QString() << QStringLiteral("SYSTEM");
        QTest::newRow("name searches anew")
            << QStringLiteral("chrome.exe") << true << QStringLiteral("reg/chrome.exe") << QStringLiteral("C")
            << QStringLiteral("C");
        QTest::newRow("capitals find it, code empty")
            << QStringLiteral("CHROME.EXE") << true << QStringLiteral("reg/chrome.exe") << QString()
            << QString();
    }

    void initStoresAndReports()
    {
        QFETCH(QString, name);
        QFETCH(bool, storedExists);
        QFETCH(QString, expectedPath);
        QFETCH(QString, code);
        QFETCH(QString, browser);
        const QString stored = executable(QStringLiteral("stored/chrome.exe"));
        if (!storedExists)
            QFile::remove(stored);
        registry->processes[QStringLiteral("other.exe")] = executable(QStringLiteral("other.exe"));
        registry->registerBrowser(UserClients, QStringLiteral("Google Chrome"),
                                  executable(QStringLiteral("reg/chrome.exe")));
        settings->SetString("PreferredBrowser", "old value");

        Browser preferred(settings, registry);
        preferred.Init({QStringLiteral("en"), name, stored});
        const QString path = expectedPath.isEmpty() ? QString() : dir.filePath(expectedPath);
        QCOMPARE(preferred.Path(), path);
        QCOMPARE(QString::fromStdString(settings->GetString("PreferredBrowser", "unset")), path);
        QCOMPARE(tracker->events().size(), size_t(1));
        const auto event = tracker->events().front();
        QCOMPARE(event.name, std::string("PREFERRED_BROWSER"));
        const std::map<std::string, std::string> expected = {{"WI_PREFERRED_BROWSER", code.toStdString()},
                                                             {"BROWSER", browser.toStdString()},
                                                             {"BROWSER_PATH", path.toStdString()}};
        QCOMPARE(event.params, expected);
    }

    void pathSearchesAgainWhenTheFileVanished()
    {
        const QString first = executable(QStringLiteral("one/firefox.exe"));
        registry->registerBrowser(UserClients, QStringLiteral("A"), first);
        int asked = 0;
        Browser preferred(settings, registry);
        preferred.SetContextCallback([&]() {
            ++asked;
            return AbstractPreferredBrowser::PreferredBrowserContext{QString(), QStringLiteral("firefox.exe"),
                                                                     QString()};
        });
        QCOMPARE(preferred.Name(), QString()); // no search before the first Path()
        QCOMPARE(preferred.Path(), first);
        QCOMPARE(preferred.Path(), first);
        QCOMPARE(asked, 1);

        QFile::remove(first);
        const QString second = executable(QStringLiteral("two/firefox.exe"));
        registry->registerBrowser(UserClients, QStringLiteral("B"), second);
        QCOMPARE(preferred.Path(), second);
        QCOMPARE(asked, 2);
        QCOMPARE(preferred.Name(), QStringLiteral("firefox.exe"));
        QCOMPARE(tracker->events().size(), size_t(2));
    }

    // Each browser the reports know, by the code and user agent written down in browsers.tsv.
    void everyKnownBrowser_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("code");
        QTest::addColumn<QString>("agent");
        const QList<QStringList> rows = Test::readTable(QStringLiteral(OSTREL_BROWSER_TABLE));
        QVERIFY(!rows.isEmpty());
        for (const QStringList& fields : rows) {
            QCOMPARE(fields.size(), 3);
            QTest::newRow(qPrintable(fields[0])) << fields[0] << fields[1] << fields[2];
        }
    }

    void everyKnownBrowser()
    {
        QFETCH(QString, name);
        QFETCH(QString, code);
        QFETCH(QString, agent);
        registry->registerBrowser(UserClients, QStringLiteral("B"),
                                  executable(QStringLiteral("reg/") + name));
        Browser preferred(settings, registry);
        preferred.Init({QStringLiteral("en"), name, QString()});
        QCOMPARE(QString::fromStdString(tracker->events().front().params.at("WI_PREFERRED_BROWSER")), code);
        QCOMPARE(preferred.UserAgent(), agent);
    }

    // A browser the reports do not know, or none, is given the agent of "browser.exe".
    void unknownBrowsersTakeTheDefaultAgent()
    {
        Browser preferred(nullptr, registry);
        const QString fallback = preferred.UserAgent();
        QVERIFY(fallback.contains(QLatin1String("YaBrowser")));
        preferred.Init({QString(), QString(), executable(QStringLiteral("x/vivaldi.exe"))});
        QCOMPARE(preferred.UserAgent(), fallback);
        preferred.Init({QString(), QString(), executable(QStringLiteral("x/Chrome.exe"))});
        QCOMPARE(preferred.UserAgent(), fallback);
    }

    void withoutCallbackNothingIsSearched()
    {
        registry->registerBrowser(UserClients, QStringLiteral("A"),
                                  executable(QStringLiteral("firefox.exe")));
        Tracking::ApplicationTrackerFactory::setApplicationTracker(nullptr);
        Browser preferred(nullptr, registry);
        QCOMPARE(preferred.Path(), QString());
        preferred.Init(
            {QString(), QStringLiteral("firefox.exe"), QString()}); // no tracker, no settings: fine
        QCOMPARE(preferred.Name(), QStringLiteral("firefox.exe"));
    }
};

OSTREL_TEST_MAIN(TestBrowser)
#include "tst_browser.moc"
