// The common request headers on a real request to a server on 127.0.0.1 that records what it
// got, and the HTTP client against the same server.

#include "App/Application/HttpRequestUpdater.h"
#include "Foundation/SHA1.h"
#include "Http/CaseInsensitiveCompare.h"
#include "Http/HttpClient.h"

#include "Fakes.h"
#include "LogCapture.h"
#include "TestEnvironment.h"

#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QTcpServer>
#include <QTcpSocket>
#include <QUrlQuery>

using namespace Ostrel;
using namespace Ostrel::App;
using namespace Ostrel::Test;

namespace {

// One request at a time: records its line, headers (names as sent) and body, then answers with
// `status`, or not at all when `silent`.
class RecordingServer : public QObject
{
public:
    QByteArray requestLine;
    QList<QPair<QByteArray, QByteArray>> headers;
    QByteArray body;
    int requests = 0;
    int status = 200;
    bool silent = false;

    RecordingServer()
    {
        m_server.listen(QHostAddress::LocalHost);
        connect(&m_server, &QTcpServer::newConnection, this, [this]() {
            QTcpSocket* socket = m_server.nextPendingConnection();
            auto* buffer = new QByteArray;
            connect(socket, &QObject::destroyed, [buffer]() { delete buffer; });
            connect(socket, &QTcpSocket::readyRead, this, [this, socket, buffer]() {
                *buffer += socket->readAll();
                const int end = buffer->indexOf("\r\n\r\n");
                if (end < 0)
                    return;
                const QList<QByteArray> lines = buffer->left(end).split('\n');
                QList<QPair<QByteArray, QByteArray>> received;
                int length = 0;
                for (int i = 1; i < lines.size(); ++i) {
                    const int colon = lines[i].indexOf(':');
                    received.append({lines[i].left(colon).trimmed(), lines[i].mid(colon + 1).trimmed()});
                    if (received.back().first.toLower() == "content-length")
                        length = received.back().second.toInt();
                }
                if (buffer->size() < end + 4 + length)
                    return;
                requestLine = lines.first().trimmed();
                headers = received;
                body = buffer->mid(end + 4, length);
                ++requests;
                buffer->clear();
                if (silent)
                    return;
                socket->write("HTTP/1.1 " + QByteArray::number(status) + " X\r\nContent-Length: 5\r\n"
                              "Connection: close\r\n\r\nhello");
                socket->disconnectFromHost();
            });
        });
    }

    QByteArray header(const QByteArray& name) const
    {
        for (const auto& [key, value] : headers) {
            if (key == name)
                return value;
        }
        return "<none>";
    }

    std::string url(const char* path) const
    {
        return "http://127.0.0.1:" + std::to_string(m_server.serverPort()) + path;
    }

private:
    QTcpServer m_server;
};

// Answers by path, for the body cap and the redirects: "/body?size=N" sends N bytes, "/endless"
// sends until the client hangs up, "/announced" announces more than any cap and sends nothing,
// "/redirect?to=X" sends 302 to X, "/final" says "landed". A minimal stand-in until the shared
// test server lands.
class ScriptedServer : public QTcpServer
{
public:
    QStringList paths;

    ScriptedServer()
    {
        connect(this, &QTcpServer::newConnection, this, [this]() {
            while (QTcpSocket* socket = nextPendingConnection())
                connect(socket, &QTcpSocket::readyRead, socket, [this, socket]() { answer(socket); });
        });
        listen(QHostAddress::LocalHost);
    }
    std::string url(const QString& path) const
    {
        return QStringLiteral("http://127.0.0.1:%1%2").arg(serverPort()).arg(path).toStdString();
    }

private:
    void answer(QTcpSocket* socket)
    {
        const QUrl target(QString::fromLatin1(socket->readAll().split(' ').value(1)));
        paths << target.path();
        const QUrlQuery query(target);
        if (target.path() == QLatin1String("/endless")) {
            socket->write("HTTP/1.1 200 OK\r\nConnection: close\r\n\r\n");
            // Another 64 KiB whenever the last went out, for as long as the client reads.
            const auto more = [socket]() {
                if (socket->bytesToWrite() == 0 && socket->state() == QAbstractSocket::ConnectedState)
                    socket->write(QByteArray(64 * 1024, 'x'));
            };
            connect(socket, &QTcpSocket::bytesWritten, socket, more);
            more();
            return;
        }
        QByteArray head = "HTTP/1.1 200 OK";
        QByteArray body;
        if (target.path() == QLatin1String("/body"))
            body = QByteArray(query.queryItemValue(QStringLiteral("size")).toInt(), 'x');
        else if (target.path() == QLatin1String("/final"))
            body = "landed";
        else if (target.path() == QLatin1String("/redirect"))
            head = "HTTP/1.1 302 Found\r\nLocation: " +
                   query.queryItemValue(QStringLiteral("to"), QUrl::FullyDecoded).toUtf8();
        const QByteArray length =
            target.path() == QLatin1String("/announced") ? "1000000000" : QByteArray::number(body.size());
        socket->write(head + "\r\nContent-Length: " + length + "\r\nConnection: close\r\n\r\n" + body);
        socket->disconnectFromHost();
    }
};

} // namespace

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
        RecordingServer server;
        HttpRequestUpdater updater(customization, user, hardware);
        QNetworkRequest request(QUrl(QString::fromStdString(server.url("/headers"))));
        request.setHeader(QNetworkRequest::UserAgentHeader, QStringLiteral("Overwritten/0"));
        request.setRawHeader("X-Mine", "kept");
        updater.updateQtRequest(request);

        QNetworkAccessManager manager;
        QNetworkReply* reply = manager.get(request);
        QTRY_VERIFY_WITH_TIMEOUT(reply->isFinished(), 10000);
        delete reply;
        QCOMPARE(server.requests, 1);
        QCOMPARE(server.header("User-Agent"), QByteArray("Mozilla/5.0 Probe/1"));
        QCOMPARE(server.header("Ostrel-Huid"), QByteArray::fromStdString(Util::SHA1::digest("machine-42")));
        QCOMPARE(server.header("Ostrel-Os"), QByteArray("win"));
        QCOMPARE(server.header("Ostrel-Webuid"), QByteArray("UNDEFINED"));
        QCOMPARE(server.header("X-Mine"), QByteArray("kept"));
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
        RecordingServer server;
        Networking::HttpClient client;
        Networking::HttpRequest post;
        post.method = Networking::HttpRequest::Method::Post;
        post.url = server.url("/form?x=1");
        post.headers = {{"Content-Type", "application/json"}, {"X-Probe", "1"}};
        post.body = "{\"a\":1}";
        auto response = sendAndWait(client, post);
        QCOMPARE(server.requestLine, QByteArray("POST /form?x=1 HTTP/1.1"));
        QCOMPARE(server.body, QByteArray("{\"a\":1}"));
        QCOMPARE(server.header("X-Probe"), QByteArray("1"));
        QCOMPARE(response.status, 200);
        QCOMPARE(response.body, std::string("hello"));
        QCOMPARE(response.error, std::string());

        server.status = 503;
        response = sendAndWait(client, {Networking::HttpRequest::Method::Get, server.url("/down"), {}, {}});
        QCOMPARE(server.requestLine, QByteArray("GET /down HTTP/1.1"));
        QCOMPARE(response.status, 503);
        QVERIFY(!response.error.empty());
    }

    void clientFailures()
    {
        RecordingServer server;
        server.silent = true;
        Networking::HttpClient client;
        Networking::HttpRequest request;
        request.url = server.url("/slow");
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
        ScriptedServer server;
        Networking::HttpClient client;
        Networking::HttpRequest request;
        request.url = server.url(path);
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
        ScriptedServer server;
        to.replace(QLatin1String("%BASE%"), QString::fromStdString(server.url(QString())));
        Networking::HttpClient client;
        Networking::HttpRequest request;
        request.url =
            server.url(QStringLiteral("/redirect?to=") + QString::fromLatin1(QUrl::toPercentEncoding(to)));
        LogCapture log;
        const auto response = sendAndWait(client, request);
        if (followed) {
            QCOMPARE(response.error, std::string());
            QCOMPARE(response.body, std::string("landed"));
            QCOMPARE(server.paths, (QStringList{QStringLiteral("/redirect"), QStringLiteral("/final")}));
            return;
        }
        const std::string expected = "redirect to " + to.toStdString() + " refused";
        QVERIFY2(response.error.find(expected) == 0, response.error.c_str());
        QVERIFY(response.body.empty());
        QCOMPARE(log.matching(expected).size(), size_t(1));
        QCOMPARE(server.paths, QStringList{QStringLiteral("/redirect")});
    }
};

OSTREL_TEST_MAIN(TestHttp)
#include "tst_http.moc"
