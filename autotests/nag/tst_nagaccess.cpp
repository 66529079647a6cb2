// What a nag may reach and open. A remote nag served from 127.0.0.1 tries a file, a host that is
// not its server and a network share; a local nag reaches past its folder; a nag's link names a
// file, a share or another program. Each is refused with a WARNING that names it, and nothing
// arrives: not the file, not the request, not the link at the desktop's URL handlers.

#include "App/Application/NagScreen/DefaultActions.h"
#include "App/Application/NagScreen/NagLinksOpener.h"
#include "App/Application/NagScreen/ProductNagHosts.h"
#include "Core/LinksManager.h"
#include "Foundation/Utf8.h"
#include "Interfaces/ILinksOpener.h"
#include "Nag/QuickContent.h"
#include "Nag/WebQuickContent.h"

#include "FakeCustomization.h"
#include "FakeHardware.h"
#include "FakeLaunchType.h"
#include "FakeLookAndFeel.h"
#include "FixedUrlGenerator.h"
#include "LogCapture.h"
#include "MemorySettings.h"
#include "RecordingHttpServer.h"
#include "TestEnvironment.h"

#include <QDesktopServices>
#include <QQuickItem>
#include <QQuickWidget>
#include <QTemporaryDir>

using namespace Ostrel;
using namespace Ostrel::App;
using namespace Ostrel::App::NagScreen;
using namespace Ostrel::Test;

namespace {

// The nag server: "/nag/main.qml" is `nag`, "/data" and "/secret" answer with a text, anything
// else (the engine's qmldir) is not there.
void serveNag(RecordingHttpServer& server, const QByteArray& nag)
{
    server.setReply(RecordingHttpServer::response(404));
    server.setReplyFor("/nag/main.qml", RecordingHttpServer::response(200, nag));
    server.setReplyFor("/data", RecordingHttpServer::response(200, "allowed-body"));
    server.setReplyFor("/secret", RecordingHttpServer::response(200, "SECRET"));
}

// A nag that runs `script` once it is complete and shows what came of it in "result".
QByteArray probingNag(const QString& script)
{
    return QStringLiteral("import QtQuick 2.15\n"
                          "Item {\n"
                          "    width: 300; height: 200\n"
                          "    property string result: \"pending\"\n"
                          "    function report(text) { result = text }\n"
                          "    function get(url) {\n"
                          "        var request = new XMLHttpRequest()\n"
                          "        request.onreadystatechange = function() {\n"
                          "            if (request.readyState === XMLHttpRequest.DONE)\n"
                          "                report(request.status + \":\" + request.responseText)\n"
                          "        }\n"
                          "        request.open(\"GET\", url)\n"
                          "        request.send()\n"
                          "    }\n"
                          "    function open(url) { callback.RequestUrl(url) }\n"
                          "    Loader { id: probe }\n"
                          "    Component.onCompleted: { %1 }\n"
                          "}\n")
        .arg(script)
        .toUtf8();
}

QQuickItem* nagItemOf(const AbstractContent& content)
{
    QQuickItem* root = static_cast<QQuickWidget*>(content.GetUi())->rootObject();
    const QVariant loaded = root ? root->property("nagItem") : QVariant();
    return loaded.isValid() ? loaded.value<QQuickItem*>() : root;
}

bool loadAndWait(AbstractContent& content)
{
    content.Load();
    return QTest::qWaitFor([&]() { return content.State() != ContentState::Loading; }, 10000) &&
           content.State() == ContentState::Ready;
}

// A product's own links opener, which checks nothing: the nag's actions must.
class PlainOpener : public INagLinksOpener
{
public:
    explicit PlainOpener(std::shared_ptr<ILinksOpener> links) : m_links(std::move(links)) {}
    void OpenUrl(const AbstractContent&, const QString& url, const QMap<QString, QVariant>&) override
    {
        m_links->OpenUrl(url);
    }
    void OpenUrl(const AbstractContent&, URLKeys key, const QMap<QString, QVariant>&) override
    {
        m_links->OpenUrl(key);
    }

private:
    std::shared_ptr<ILinksOpener> m_links;
};

} // namespace

// Stands in for the desktop's handler of a scheme: keeps what it was asked to open.
class RecordingUrlHandler : public QObject
{
    Q_OBJECT
public:
    QList<QUrl> opened;
public Q_SLOTS:
    void open(const QUrl& url) { opened << url; }
};

class NagAccessTest : public QObject
{
    Q_OBJECT

    QTemporaryDir dir;
    RecordingUrlHandler desktop;

    QString fileUrl(const QString& name) const { return QUrl::fromLocalFile(dir.filePath(name)).toString(); }
    void write(const QString& name, const QByteArray& text) const
    {
        QFile file(dir.filePath(name));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(text);
    }

    static const QStringList& handledSchemes()
    {
        static const QStringList schemes = {QStringLiteral("file"),       QStringLiteral("smb"),
                                            QStringLiteral("javascript"), QStringLiteral("ostrel-other"),
                                            QStringLiteral("http"),       QStringLiteral("https"),
                                            QStringLiteral("mailto")};
        return schemes;
    }

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(dir.isValid());
        write(QStringLiteral("secret.txt"), "SECRET");
        write(QStringLiteral("Marker.qml"), "import QtQuick 2.15\nItem { objectName: \"marker\" }\n");
        QVERIFY(QDir(dir.path()).mkdir(QStringLiteral("nag")));
        write(QStringLiteral("nag/own.txt"), "own");
        for (const QString& scheme : handledSchemes())
            QDesktopServices::setUrlHandler(scheme, &desktop, "open");
    }
    void cleanupTestCase()
    {
        for (const QString& scheme : handledSchemes())
            QDesktopServices::unsetUrlHandler(scheme);
    }
    void init() { desktop.opened.clear(); }

    void remoteNagReachesOnlyItsServer_data()
    {
        QTest::addColumn<QString>("script");
        QTest::addColumn<QString>("expected");
        QTest::addColumn<QString>("refused"); // what the WARNING names; empty: nothing is refused

        QTest::newRow("request to the nag server") << "get('%BASE%/data')"
                                                   << "200:allowed-body"
                                                   << "";
        QTest::newRow("request to another host") << "get('%OTHER%/secret')"
                                                 << "0:"
                                                 << "%OTHER%/secret";
        QTest::newRow("request for a file") << "get('%DIR%/secret.txt')"
                                            << "0:"
                                            << "%DIR%/secret.txt";
        QTest::newRow("QML from a file") << "probe.source = '%DIR%/Marker.qml'; "
                                            "report(probe.item ? probe.item.objectName : 'none')"
                                         << "none"
                                         << "%DIR%/Marker.qml";
        QTest::newRow("share through the desktop")
            << "report(String(Qt.openUrlExternally('smb://share.example/setup.exe')))"
            << "false"
            << "smb://share.example/setup.exe";
    }
    void remoteNagReachesOnlyItsServer()
    {
        QFETCH(QString, script);
        QFETCH(QString, expected);
        QFETCH(QString, refused);
        RecordingHttpServer server;
        const QString other = QStringLiteral("http://localhost:%1").arg(server.url(QString()).port());
        const auto fill = [&](QString text) {
            return text.replace(QLatin1String("%BASE%"), server.base())
                .replace(QLatin1String("%OTHER%"), other)
                .replace(QLatin1String("%DIR%"), QUrl::fromLocalFile(dir.path()).toString());
        };
        serveNag(server, probingNag(fill(script)));

        ContentEnvironment environment;
        environment.urlGenerator =
            std::make_shared<FixedUrlGenerator>(QUrl(server.base() + QStringLiteral("/nag/main.qml")));
        environment.access.hosts = QStringList{QStringLiteral("127.0.0.1")};
        environment.access.allowHttp = true;
        WebQuickContent content(NagContext{QStringLiteral("app_start"), QStringLiteral("free")}, QUrl(),
                                environment);
        LogCapture log;
        QVERIFY(loadAndWait(content));
        QQuickItem* nag = nagItemOf(content);
        QTRY_VERIFY_WITH_TIMEOUT(nag->property("result").toString() != QLatin1String("pending"), 10000);

        QCOMPARE(nag->property("result").toString(), expected);
        QVERIFY(server.requestsTo("/secret").isEmpty());
        QVERIFY(desktop.opened.isEmpty());
        const auto refusals = log.matching("Nag access refused: ");
        if (refused.isEmpty()) {
            QVERIFY(refusals.empty());
        } else {
            QCOMPARE(refusals.size(), size_t(1));
            QVERIFY2(refusals.front().find(Util::QStringToUtf8(fill(refused))) != std::string::npos,
                     refusals.front().c_str());
        }
    }

    void withoutRulesNoRemoteNagLoads()
    {
        RecordingHttpServer server;
        serveNag(server, probingNag(QString()));
        const QString address = server.base() + QStringLiteral("/nag/main.qml");
        ContentEnvironment environment;
        environment.urlGenerator = std::make_shared<FixedUrlGenerator>(QUrl(address));
        WebQuickContent content(NagContext{QStringLiteral("app_start"), QStringLiteral("free")}, QUrl(),
                                environment);
        LogCapture log;
        QVERIFY(!loadAndWait(content));
        QCOMPARE(content.State(), ContentState::Failed);
        QVERIFY(server.requests().isEmpty());
        QCOMPARE(log.matching("Nag access refused: " + Util::QStringToUtf8(address)).size(), size_t(1));
    }

    void localNagReadsOnlyItsFolder_data()
    {
        QTest::addColumn<QString>("script");
        QTest::addColumn<QString>("expected");
        QTest::newRow("its own file") << "get('own.txt')"
                                      << "own";
        QTest::newRow("a file beside its folder") << "get('../secret.txt')"
                                                  << "";
    }
    void localNagReadsOnlyItsFolder()
    {
        QFETCH(QString, script);
        QFETCH(QString, expected);
        write(QStringLiteral("nag/main.qml"), probingNag(script));
        QuickContent content(NagContext{QStringLiteral("app_start"), QStringLiteral("free")},
                             QUrl::fromLocalFile(dir.filePath(QStringLiteral("nag/main.qml"))),
                             ContentEnvironment());
        QVERIFY(loadAndWait(content));
        QQuickItem* nag = nagItemOf(content);
        QTRY_VERIFY_WITH_TIMEOUT(nag->property("result").toString() != QLatin1String("pending"), 10000);
        // The status of a file read differs between Qt versions; the text is what matters.
        QCOMPARE(nag->property("result").toString().section(QLatin1Char(':'), 1), expected);
    }

    void productNagHosts_data()
    {
        QTest::addColumn<QString>("messagesHost"); // "Hosts/messages"; empty: the built-in one
        QTest::addColumn<QString>("customWebNag"); // "Links/CUSTOM_WEB_NAG_URL"
        QTest::addColumn<QStringList>("hosts");
        QTest::newRow("built-in") << ""
                                  << "" << QStringList{QStringLiteral("msg.ostrel.com")};
        QTest::newRow("customized, with a port") << "Nags.Example.com:8443"
                                                 << "" << QStringList{QStringLiteral("nags.example.com")};
        QTest::newRow("a custom web nag")
            << ""
            << "https://web.example.org/nag/?lang=-LANG-"
            << QStringList{QStringLiteral("msg.ostrel.com"), QStringLiteral("web.example.org")};
        QTest::newRow("a custom web nag on the same host")
            << "nags.example.com"
            << "https://nags.example.com/other/" << QStringList{QStringLiteral("nags.example.com")};
    }
    void productNagHosts()
    {
        QFETCH(QString, messagesHost);
        QFETCH(QString, customWebNag);
        QFETCH(QStringList, hosts);
        FakeCustomization customization;
        // Other endpoints are no nag hosts.
        customization.custom["Hosts/links"] = "links.example.com";
        if (!messagesHost.isEmpty())
            customization.custom["Hosts/messages"] = messagesHost.toStdString();
        if (!customWebNag.isEmpty())
            customization.custom["Links/CUSTOM_WEB_NAG_URL"] = customWebNag.toStdString();
        QCOMPARE(ProductNagHosts(&customization), hosts);
    }

    void nagLinksOpenOnlyWebPagesAndMail_data()
    {
        // true: the nag's link, through the actions, to an opener of the product's that checks
        // nothing; false: handed to the shell's links opener directly.
        QTest::addColumn<bool>("fromTheNag");
        QTest::addColumn<QString>("link");
        QTest::addColumn<bool>("opens");
        QTest::addColumn<QString>("named"); // what the WARNING of a refused link names

        const QList<std::tuple<const char*, QString, bool, QString>> links = {
            {"file", QStringLiteral("file:///etc/passwd"), false, QStringLiteral("file:///etc/passwd")},
            {"share", QStringLiteral("smb://fileserver/share/setup.exe"), false,
             QStringLiteral("smb://fileserver/share/setup.exe")},
            {"script", QStringLiteral("javascript:alert(1)"), false, QStringLiteral("javascript:alert(1)")},
            {"another program, the query left out", QStringLiteral("ostrel-other:run?x=1"), false,
             QStringLiteral("ostrel-other:run\"")},
            {"a path with an address, masked", QStringLiteral("ostrel-other:u/jo@x.example/run"), false,
             QStringLiteral("ostrel-other:u/***/run\"")},
            {"empty", QString(), false, QStringLiteral("\"\"")},
            {"malformed", QStringLiteral("http://[::1"), false, QStringLiteral("\"\"")},
            {"web page", QStringLiteral("https://www.example.com/offer"), true, QString()},
            {"mail", QStringLiteral("mailto:support@example.com"), true, QString()},
        };
        for (const bool fromTheNag : {true, false}) {
            for (const auto& [name, link, opens, named] : links) {
                QTest::addRow("%s, %s", fromTheNag ? "from the nag" : "to the opener", name)
                    << fromTheNag << link << opens << named;
            }
        }
    }
    void nagLinksOpenOnlyWebPagesAndMail()
    {
        QFETCH(bool, fromTheNag);
        QFETCH(QString, link);
        QFETCH(bool, opens);
        QFETCH(QString, named);

        // The real links manager opens through QDesktopServices, where the recording handlers wait.
        const auto links = std::make_shared<LinksManager>(
            std::make_shared<FakeCustomization>(), std::make_shared<FakeHardware>(),
            std::make_shared<FakeLookAndFeel>(), std::make_shared<MemoryMailSettings>(),
            std::make_shared<MemoryProductSettings>(), std::make_shared<MemoryUserSettings>(),
            std::make_shared<FakeLaunchType>(), nullptr, nullptr);
        const auto opener = fromLinksOpener(links);
        const std::shared_ptr<INagLinksOpener> plain = std::make_shared<PlainOpener>(links);
        const auto actions =
            std::make_shared<DefaultActions>(links, plain, nullptr, nullptr, nullptr, nullptr);
        ContentEnvironment environment;
        environment.actionStrategy = [actions]() { return actions; };
        write(QStringLiteral("nag/main.qml"), probingNag(QString()));
        QuickContent content(NagContext{QStringLiteral("app_start"), QStringLiteral("free")},
                             QUrl::fromLocalFile(dir.filePath(QStringLiteral("nag/main.qml"))), environment);
        QVERIFY(loadAndWait(content));

        LogCapture log;
        if (fromTheNag)
            QVERIFY(QMetaObject::invokeMethod(nagItemOf(content), "open", Q_ARG(QVariant, link)));
        else
            opener->OpenUrl(content, link, {});

        // The handlers are called synchronously: nothing arrives later.
        QCOMPARE(desktop.opened, opens ? QList<QUrl>{QUrl(link)} : QList<QUrl>());
        const auto refusals = log.matching("Nag link refused");
        if (opens) {
            QVERIFY(refusals.empty());
        } else {
            QCOMPARE(refusals.size(), size_t(1));
            QVERIFY2(refusals.front().find(Util::QStringToUtf8(named)) != std::string::npos,
                     refusals.front().c_str());
        }
    }
};

OSTREL_TEST_MAIN(NagAccessTest)
#include "tst_nagaccess.moc"
