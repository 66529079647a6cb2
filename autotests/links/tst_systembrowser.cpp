// The browser search over the system's own sources on Linux: desktop entries that handle
// "x-scheme-handler/http", $BROWSER, mimeapps.list and PATH, in a desktop tree of the test's own;
// and the preferred browser as the host builds it, opening a link in the browser it found.

#include "App/Application/PreferredBrowser.h"
#include "App/Application/ProductConstants.h"
#include "App/Application/SystemBrowserSources.h"

#include "FakeLookAndFeel.h"
#include "MemorySettings.h"
#include "TestEnvironment.h"
#include "TestFiles.h"

#include <QDesktopServices>
#include <QTemporaryDir>

using namespace Ostrel;
using namespace Ostrel::App;
using namespace Ostrel::Test;

namespace {

const QString UserClients = QStringLiteral("HKEY_CURRENT_USER\\SOFTWARE\\Clients\\StartMenuInternet");
const QString MachineClients = QStringLiteral("HKEY_LOCAL_MACHINE\\SOFTWARE\\Clients\\StartMenuInternet");
const QString MuiCache = QStringLiteral(
    "HKEY_CURRENT_USER\\Software\\Classes\\Local Settings\\Software\\Microsoft\\Windows\\Shell\\MuiCache");

QString command(const QString& root, const QString& id)
{
    return SystemBrowserSources().defaultValue(root + QLatin1Char('\\') + id +
                                               QStringLiteral("\\shell\\open\\command"));
}

} // namespace

class SystemBrowserTest : public QObject
{
    Q_OBJECT

    QTemporaryDir m_tree;

    QString path(const QString& relative) const { return m_tree.filePath(relative); }

    void write(const QString& relative, const QByteArray& text)
    {
        QDir().mkpath(QFileInfo(path(relative)).path());
        QFile file(path(relative));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(text);
    }

    void entry(const QString& relative, const QByteArray& mime, const QByteArray& exec,
               const QByteArray& extra = {})
    {
        write(relative, "[Desktop Entry]\nType=Application\nName=X\nMimeType=" + mime + "\nExec=" + exec +
                            "\n" + extra + "[Desktop Action new]\nExec=elsewhere\n");
    }

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(m_tree.isValid());
        // Every browser is the stand-in, under the name of a real one.
        QDir().mkpath(path(QStringLiteral("bin")));
        for (const char* name : {"firefox", "chromium", "brave", "mybrowser"})
            QVERIFY(QFile::link(QStringLiteral(BROWSER_STUB),
                                path(QStringLiteral("bin/")) + QLatin1String(name)));

        const QByteArray http = "text/html;x-scheme-handler/http;x-scheme-handler/https;";
        entry(QStringLiteral("home/applications/firefox.desktop"), http, "firefox %u");
        entry(QStringLiteral("home/applications/hidden.desktop"), http, "chromium", "Hidden=true\n");
        entry(QStringLiteral("home/applications/editor.desktop"), "text/plain;", "firefox %f");
        entry(QStringLiteral("home/applications/missing.desktop"), http, "not-installed %u");
        entry(QStringLiteral("sys1/applications/chromium.desktop"), http, "chromium --new-window %U");
        entry(QStringLiteral("sys2/applications/chromium.desktop"), http, "firefox");
        entry(QStringLiteral("sys2/applications/brave.desktop"), http,
              "\"" + path(QStringLiteral("bin/brave")).toUtf8() + "\" %u");
        write(QStringLiteral("config/mimeapps.list"),
              "[Added Associations]\nx-scheme-handler/http=chromium.desktop;\n"
              "[Default Applications]\nx-scheme-handler/http=brave.desktop;chromium.desktop\n");

        qputenv("XDG_DATA_HOME", QFile::encodeName(path(QStringLiteral("home"))));
        qputenv("XDG_DATA_DIRS", QFile::encodeName(path(QStringLiteral("sys1")) + QLatin1Char(':') +
                                                   path(QStringLiteral("sys2"))));
        qputenv("XDG_CONFIG_HOME", QFile::encodeName(path(QStringLiteral("config"))));
        qputenv("PATH", QFile::encodeName(path(QStringLiteral("bin"))) + ":/usr/bin:/bin");
        qunsetenv("BROWSER");
    }

    void desktopEntriesAnswerTheRegistryKeys()
    {
        const SystemBrowserSources sources;
        // Hidden entries, other types and programs not on PATH fall out; the default leads.
        QCOMPARE(sources.subkeys(UserClients), QStringList{QStringLiteral("firefox.desktop")});
        QCOMPARE(sources.subkeys(MachineClients),
                 (QStringList{QStringLiteral("brave.desktop"), QStringLiteral("chromium.desktop")}));
        QCOMPARE(command(UserClients, QStringLiteral("firefox.desktop")),
                 path(QStringLiteral("bin/firefox")));
        // The first folder of XDG_DATA_DIRS wins for an id found in two.
        QCOMPARE(command(MachineClients, QStringLiteral("chromium.desktop")),
                 path(QStringLiteral("bin/chromium")));
        QCOMPARE(command(MachineClients, QStringLiteral("brave.desktop")), path(QStringLiteral("bin/brave")));
        QCOMPARE(command(UserClients, QStringLiteral("hidden.desktop")), QString());
        QCOMPARE(sources.defaultValue(UserClients + QStringLiteral("\\firefox.desktop")), QString());
        QVERIFY(sources.subkeys(QStringLiteral("HKEY_CURRENT_USER\\SOFTWARE\\Other")).isEmpty());
        QVERIFY(sources.valueNames(MuiCache).isEmpty());

        // $BROWSER is the user's word and leads; only its first program counts.
        qputenv("BROWSER", "mybrowser:firefox");
        QCOMPARE(sources.subkeys(UserClients),
                 (QStringList{QStringLiteral("BROWSER"), QStringLiteral("firefox.desktop")}));
        QCOMPARE(command(UserClients, QStringLiteral("BROWSER")), path(QStringLiteral("bin/mybrowser")));
        qunsetenv("BROWSER");

        const QString self =
            QFileInfo(QCoreApplication::applicationFilePath()).fileName().toLower() + QStringLiteral(".exe");
        const auto processes = sources.processMap();
        QVERIFY(processes.count(self));
        QCOMPARE(QFileInfo(processes.at(self)).canonicalFilePath(),
                 QFileInfo(QCoreApplication::applicationFilePath()).canonicalFilePath());
    }

    // As the host builds it: the installer's browser name found through the system's sources,
    // remembered, and links of the process opened in it.
    void hostsBrowserOpensLinksInTheBrowserItFound()
    {
        const QString record = path(QStringLiteral("opened.txt"));
        qputenv("OSTREL_BROWSER_STUB_RECORD", QFile::encodeName(record));
        const auto product = std::make_shared<MemoryProductSettings>();
        const auto installer = std::make_shared<MemoryInstallerSettings>();
        installer->SetString(ProductConstants::Browser, "chromium.exe");
        {
            PreferredBrowser browser(std::make_shared<FakeLookAndFeel>(), product, installer);
            QCOMPARE(browser.Path(), path(QStringLiteral("bin/chromium")));
            QCOMPARE(browser.Name(), QStringLiteral("chromium"));
            QCOMPARE(QString::fromStdString(product->GetString("PreferredBrowser", "")), browser.Path());

            QVERIFY(QDesktopServices::openUrl(QUrl(QStringLiteral("https://example.test/page?a=1"))));
            QTRY_VERIFY_WITH_TIMEOUT(Test::readFile(record).contains("--end--"), 10000);
            QCOMPARE(Test::readFile(record), QByteArray("https://example.test/page?a=1\n--end--\n"));
        }
    }
};

OSTREL_TEST_MAIN(SystemBrowserTest)
#include "tst_systembrowser.moc"
