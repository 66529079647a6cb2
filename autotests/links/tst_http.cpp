// The common request headers on a real request to a server on 127.0.0.1 that records what it
// got, and the HTTP client against the same server.

#include "App/Application/Application.h"
#include "App/Application/CreateDefaultUpdater.h"
#include "App/Application/HttpRequestUpdater.h"
#include "App/Application/LifetimeManager.h"
#include "Foundation/SHA1.h"
#include "Http/CaseInsensitiveCompare.h"
#include "Http/HttpClient.h"

#include "FakeCustomization.h"
#include "FakeHardware.h"
#include "LogCapture.h"
#include "MemorySettings.h"
#include "RecordingHttpServer.h"
#include "TestEnvironment.h"

#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QTcpSocket>
#include <QUrlQuery>

using namespace Ostrel;
using namespace Ostrel::App;
using namespace Ostrel::Test;

class TestHttp : public QObject
{
    Q_OBJECT

    std::shared_ptr<FakeCustomization> customization;
    std::shared_ptr<MemoryUserSettings> user;
    std::shared_ptr<FakeHardware> hardware;

    Networking::HttpResponse sendAndWait(Networking::HttpClient& client,
                                         const Networking::HttpRequest& request)
    {
        Networking::HttpResponse result;
        bool done = false;
        client.send(request, [&](const Networking::HttpResponse& response) {
            QVERIFY(!done);
            result = response;
            done = true;
        });
        [&]() { QTRY_VERIFY_WITH_TIMEOUT(done, 10000); }();
        return result;
    }

    // "/body?size=N" sends N bytes, "/endless" sends until the client hangs up, "/announced"
    // announces more than any cap and sends nothing, "/redirect?to=X" sends 302 to X, "/final"
    // says "landed".
    static void scriptLimits(RecordingHttpServer& server)
    {
        const auto query = [](const RecordingHttpServer::Request& request) {
            return QUrlQuery(QUrl(QString::fromLatin1(request.target)));
        };
        server.setHandler("/body", [query](const RecordingHttpServer::Request& request, QTcpSocket& socket) {
            const int size = query(request).queryItemValue(QStringLiteral("size")).toInt();
            socket.write(RecordingHttpServer::response(200, QByteArray(size, 'x')));
            socket.disconnectFromHost();
        });
        server.setHandler("/endless", [](const RecordingHttpServer::Request&, QTcpSocket& socket) {
            socket.write("HTTP/1.1 200 OK\r\nConnection: close\r\n\r\n");
            // Another 64 KiB whenever the last went out, for as long as the client reads.
            QTcpSocket* out = &socket;
            const auto more = [out]() {
                if (out->bytesToWrite() == 0 && out->state() == QAbstractSocket::ConnectedState)
                    out->write(QByteArray(64 * 1024, 'x'));
            };
            QObject::connect(out, &QTcpSocket::bytesWritten, out, more);
            more();
        });
        server.setReplyFor("/announced", "HTTP/1.1 200 OK\r\nContent-Length: 1000000000\r\n"
                                         "Connection: close\r\n\r\n");
        server.setHandler("/redirect", [query](const RecordingHttpServer::Request& request,
                                               QTcpSocket& socket) {
            socket.write("HTTP/1.1 302 Found\r\nLocation: " +
                         query(request).queryItemValue(QStringLiteral("to"), QUrl::FullyDecoded).toUtf8() +
                         "\r\nContent-Length: 0\r\nConnection: close\r\n\r\n");
            socket.disconnectFromHost();
        });
        server.setReplyFor("/final", RecordingHttpServer::response(200, "landed"));
    }

private slots:
    void init()
    {
        customization = std::make_shared<FakeCustomization>();
        user = std::make_shared<MemoryUserSettings>();
        hardware = std::make_shared<FakeHardware>();
    }

    void updatedRequestReachesTheServer()
    {
        RecordingHttpServer server;
        server.setReply(RecordingHttpServer::response(200, "hello"));
        HttpRequestUpdater updater(customization, user, hardware);
        QNetworkRequest request(QUrl(server.url(QStringLiteral("/headers"))));
        request.setHeader(QNetworkRequest::UserAgentHeader, QStringLiteral("Overwritten/0"));
        request.setRawHeader("X-Mine", "kept");
        updater.updateQtRequest(request);

        QNetworkAccessManager manager;
        QNetworkReply* reply = manager.get(request);
        QTRY_VERIFY_WITH_TIMEOUT(reply->isFinished(), 10000);
        delete reply;
        QCOMPARE(server.requests().size(), 1);
        QCOMPARE(server.requests().last().header("User-Agent"), QByteArray("Mozilla/5.0 Probe/1"));
        QCOMPARE(server.requests().last().header("Ostrel-Huid"),
                 QByteArray::fromStdString(Util::SHA1::digest("machine-42")));
        QCOMPARE(server.requests().last().header("Ostrel-Os"), QByteArray("win"));
        QCOMPARE(server.requests().last().header("Ostrel-Webuid"), QByteArray("UNDEFINED"));
        QCOMPARE(server.requests().last().header("X-Mine"), QByteArray("kept"));
    }

    void headersFollowTheComponents()
    {
        HttpRequestUpdater updater(customization, user, hardware);
        user->SetString("WEBUID", "web-7");
        hardware->id.clear();
        const auto raw = updater.getRawHeaders();
        QCOMPARE(raw.at("Ostrel-Webuid"), std::string("web-7"));
        QCOMPARE(raw.at("Ostrel-Huid"), std::string());
        QCOMPARE(raw.count("ostrel-webuid"), size_t(0));
        const auto headers = updater.getHeaders();
        QCOMPARE(headers.size(), raw.size());
        QCOMPARE(headers.at("ostrel-WEBUID"), std::string("web-7"));
        QCOMPARE(headers.at("user-agent"), std::string("Mozilla/5.0 Probe/1"));
    }

    // Over a context, and over the running application's own.
    void defaultUpdaterTakesTheContextsComponents()
    {
        ITopManager top;
        QVERIFY_EXCEPTION_THROWN(createDefaultUpdater(top), std::logic_error);
        auto& application = *qobject_cast<Application*>(QCoreApplication::instance());
        QVERIFY_EXCEPTION_THROWN(createDefaultUpdater(), std::logic_error);
        for (ITopManager* context : {&top, static_cast<ITopManager*>(&application)}) {
            context->set<ICustomizationManager>(customization);
            context->set<IUserSettingsManager>(user);
            context->set<IHardwareInfo>(hardware);
        }
        user->SetString("WEBUID", "web-9");
        for (const auto& updater : {createDefaultUpdater(top), createDefaultUpdater()}) {
            const auto headers = updater->getRawHeaders();
            QCOMPARE(headers.at("Ostrel-Webuid"), std::string("web-9"));
            QCOMPARE(headers.at("Ostrel-Huid"), Util::SHA1::digest("machine-42"));
            QCOMPARE(headers.at("User-Agent"), std::string("Mozilla/5.0 Probe/1"));
        }
    }

    void nullComponentsAreRefused()
    {
        QVERIFY_EXCEPTION_THROWN(HttpRequestUpdater(customization, nullptr, hardware), std::logic_error);
    }

    void caseInsensitiveOrder_data()
    {
        QTest::addColumn<QByteArray>("left");
        QTest::addColumn<QByteArray>("right");
        QTest::addColumn<bool>("less");
        QTest::addColumn<bool>("greater");
        QTest::newRow("same but case")
            << QByteArray("Content-Type") << QByteArray("content-TYPE") << false << false;
        QTest::newRow("prefix") << QByteArray("Accept") << QByteArray("accept-language") << true << false;
        QTest::newRow("letters fold before comparing") << QByteArray("a") << QByteArray("B") << true << false;
        QTest::newRow("non-letters as they are") << QByteArray("[") << QByteArray("a") << true << false;
        QTest::newRow("bytes above ASCII")
            << QByteArray("\xC3\xA9") << QByteArray("\xC3\x89") << false << true;
    }

    void caseInsensitiveOrder()
    {
        QFETCH(QByteArray, left);
        QFETCH(QByteArray, right);
        QFETCH(bool, less);
        QFETCH(bool, greater);
        const Networking::CaseInsensitiveCompare compare;
        QCOMPARE(compare(left.toStdString(), right.toStdString()), less);
        QCOMPARE(compare(right.toStdString(), left.toStdString()), greater);
    }

    void clientSendsAndReports()
    {
        RecordingHttpServer server;
        server.setReply(RecordingHttpServer::response(200, "hello"));
        Networking::HttpClient client;
        Networking::HttpRequest post;
        post.method = Networking::HttpRequest::Method::Post;
        post.url = server.url(QStringLiteral("/form?x=1")).toString().toStdString();
        post.headers = {{"Content-Type", "application/json"}, {"X-Probe", "1"}};
        post.body = "{\"a\":1}";
        auto response = sendAndWait(client, post);
        QCOMPARE(server.requests().last().line, QByteArray("POST /form?x=1 HTTP/1.1"));
        QCOMPARE(server.requests().last().body, QByteArray("{\"a\":1}"));
        QCOMPARE(server.requests().last().header("X-Probe"), QByteArray("1"));
        QCOMPARE(response.status, 200);
        QCOMPARE(response.body, std::string("hello"));
        QCOMPARE(response.error, std::string());

        // Qt's error text quotes the URL whole; the caller gets it without the user's data.
        server.setReply(RecordingHttpServer::response(503, "hello"));
        response =
            sendAndWait(client, {Networking::HttpRequest::Method::Get,
                                 server.url(QStringLiteral("/down?name=Don%20Quixote&email=don%40x.example"))
                                     .toEncoded()
                                     .toStdString(),
                                 {},
                                 {}});
        QVERIFY(server.requests().last().line.startsWith("GET /down?name=Don%20Quixote"));
        QCOMPARE(response.status, 503);
        QVERIFY2(response.error.find("/down") != std::string::npos &&
                     response.error.find("Quixote") == std::string::npos &&
                     response.error.find("don") == std::string::npos,
                 response.error.c_str());
    }

    void clientFailures()
    {
        RecordingHttpServer server;
        server.setReply(RecordingHttpServer::response(200, "hello"));
        server.setReply({});
        Networking::HttpClient client;
        Networking::HttpRequest request;
        request.url = server.url(QStringLiteral("/slow")).toString().toStdString();
        request.timeout = std::chrono::milliseconds(300);
        auto response = sendAndWait(client, request);
        QCOMPARE(response.error, std::string("timeout"));
        QCOMPARE(response.status, 0);

        request.url = "file:///etc/passwd";
        response = sendAndWait(client, request);
        QVERIFY(response.error.find("invalid URL") == 0);
    }
    void bodiesAreCapped_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<int>("cap");
        QTest::addColumn<bool>("cut");
        QTest::newRow("under the cap") << "/body?size=1000" << 1001 << false;
        QTest::newRow("exactly the cap") << "/body?size=100000" << 100000 << false;
        QTest::newRow("one byte over") << "/body?size=100001" << 100000 << true;
        QTest::newRow("endless") << "/endless" << 1000000 << true;
        QTest::newRow("announced beyond the default cap") << "/announced" << 0 << true;
    }
    void bodiesAreCapped()
    {
        QFETCH(QString, path);
        QFETCH(int, cap);
        QFETCH(bool, cut);
        RecordingHttpServer server;
        scriptLimits(server);
        Networking::HttpClient client;
        Networking::HttpRequest request;
        request.url = server.url(path).toString().toStdString();
        if (cap > 0)
            request.maxBodyBytes = static_cast<std::size_t>(cap);
        LogCapture log;
        const auto response = sendAndWait(client, request);
        QCOMPARE(response.status, 200);
        if (!cut) {
            QCOMPARE(response.error, std::string());
            QCOMPARE(response.body.size(),
                     size_t(QUrlQuery(QUrl(path)).queryItemValue(QStringLiteral("size")).toInt()));
            return;
        }
        const std::string expected =
            "response body larger than " + std::to_string(request.maxBodyBytes) + " bytes";
        QCOMPARE(response.error, expected);
        QVERIFY(response.body.empty());
        QCOMPARE(log.matching(expected).size(), size_t(1));
    }

    void redirectsGoOnlyToTheWeb_data()
    {
        QTest::addColumn<QString>("to"); // "%BASE%" is the server
        QTest::addColumn<bool>("followed");
        QTest::newRow("to a local file") << "file:///etc/passwd" << false;
        QTest::newRow("to ftp") << "ftp://127.0.0.1/pub/file" << false;
        QTest::newRow("to another program") << "ostrel-other:run" << false;
        QTest::newRow("to http") << "%BASE%/final" << true;
        QTest::newRow("relative") << "/final" << true;
    }
    void redirectsGoOnlyToTheWeb()
    {
        QFETCH(QString, to);
        QFETCH(bool, followed);
        RecordingHttpServer server;
        scriptLimits(server);
        to.replace(QLatin1String("%BASE%"), server.base());
        Networking::HttpClient client;
        Networking::HttpRequest request;
        request.url =
            server.url(QStringLiteral("/redirect?to=") + QString::fromLatin1(QUrl::toPercentEncoding(to)))
                .toString()
                .toStdString();
        LogCapture log;
        const auto response = sendAndWait(client, request);
        QStringList paths;
        for (const auto& received : server.requests())
            paths << QString::fromLatin1(received.path());
        if (followed) {
            QCOMPARE(response.error, std::string());
            QCOMPARE(response.body, std::string("landed"));
            QCOMPARE(paths, (QStringList{QStringLiteral("/redirect"), QStringLiteral("/final")}));
            return;
        }
        const std::string expected = "redirect to " + to.toStdString() + " refused";
        QVERIFY2(response.error.find(expected) == 0, response.error.c_str());
        QVERIFY(response.body.empty());
        QCOMPARE(log.matching(expected).size(), size_t(1));
        QCOMPARE(paths, QStringList{QStringLiteral("/redirect")});
    }
};

int main(int argc, char** argv)
{
    Test::initTestEnvironment(argv[0]);
    Application application(argc, argv, std::make_shared<LifetimeManager>(), Application::DISABLE_APP_MUTEX);
    TestHttp test;
    return Test::exec(&test, argc, argv);
}
#include "tst_http.moc"
