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
#include "MemorySettings.h"
#include "RecordingHttpServer.h"
#include "TestEnvironment.h"

#include <QNetworkAccessManager>
#include <QNetworkReply>

using namespace Ostrel;
using namespace Ostrel::App;
using namespace Ostrel::Test;

class TestHttp : public QObject
{
    Q_OBJECT

    std::shared_ptr<FakeCustomization> customization;
    std::shared_ptr<MemoryUserSettings> user;
    std::shared_ptr<FakeHardware> hardware;

    Networking::HttpResponse sendAndWait(Networking::HttpClient& client, const Networking::HttpRequest& request)
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
        QTest::newRow("same but case") << QByteArray("Content-Type") << QByteArray("content-TYPE") << false << false;
        QTest::newRow("prefix") << QByteArray("Accept") << QByteArray("accept-language") << true << false;
        QTest::newRow("letters fold before comparing") << QByteArray("a") << QByteArray("B") << true << false;
        QTest::newRow("non-letters as they are") << QByteArray("[") << QByteArray("a") << true << false;
        QTest::newRow("bytes above ASCII") << QByteArray("\xC3\xA9") << QByteArray("\xC3\x89") << false << true;
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

        server.setReply(RecordingHttpServer::response(503, "hello"));
        response = sendAndWait(client, {Networking::HttpRequest::Method::Get,
                                        server.url(QStringLiteral("/down")).toString().toStdString(),
                                        {},
                                        {}});
        QCOMPARE(server.requests().last().line, QByteArray("GET /down HTTP/1.1"));
        QCOMPARE(response.status, 503);
        QVERIFY(!response.error.empty());
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
};

int main(int argc, char** argv)
{
    Test::initTestEnvironment(argv[0]);
    Application application(argc, argv, std::make_shared<LifetimeManager>(), Application::DISABLE_APP_MUTEX);
    TestHttp test;
    return Test::exec(&test, argc, argv);
}
#include "tst_http.moc"
