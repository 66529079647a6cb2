#include "RecordingHttpServer.h"

#include <QHostAddress>
#include <QMap>
#include <QTcpServer>
#include <QTcpSocket>

namespace Ostrel::Test {

namespace {

// The request in `buffer` once it is complete (head and Content-Length bytes of body).
bool parseRequest(const QByteArray& buffer, RecordingHttpServer::Request* request)
{
    const int end = buffer.indexOf("\r\n\r\n");
    if (end < 0)
        return false;
    const QList<QByteArray> lines = buffer.left(end).split('\n');
    int length = 0;
    request->headers.clear();
    for (int i = 1; i < lines.size(); ++i) {
        const int colon = lines[i].indexOf(':');
        request->headers.append({lines[i].left(colon).trimmed(), lines[i].mid(colon + 1).trimmed()});
        if (request->headers.back().first.toLower() == "content-length")
            length = request->headers.back().second.toInt();
    }
    if (buffer.size() < end + 4 + length)
        return false;
    request->line = lines.first().trimmed();
    const QList<QByteArray> parts = request->line.split(' ');
    request->method = parts.value(0);
    request->target = parts.value(1);
    request->body = buffer.mid(end + 4, length);
    return true;
}

} // namespace

QByteArray RecordingHttpServer::Request::path() const
{
    const int query = target.indexOf('?');
    return query < 0 ? target : target.left(query);
}

QByteArray RecordingHttpServer::Request::header(const QByteArray& name) const
{
    for (const auto& [key, value] : headers) {
        if (key == name)
            return value;
    }
    return "<none>";
}

class RecordingHttpServer::Impl
{
public:
    QTcpServer server;
    QByteArray reply = response(200);
    QMap<QByteArray, Handler> handlers;
    QList<Request> requests;
};

RecordingHttpServer::RecordingHttpServer() : d(std::make_unique<Impl>())
{
    connect(&d->server, &QTcpServer::newConnection, this, [this]() {
        while (QTcpSocket* socket = d->server.nextPendingConnection()) {
            auto buffer = std::make_shared<QByteArray>();
            connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
            connect(socket, &QTcpSocket::readyRead, this, [this, socket, buffer]() {
                *buffer += socket->readAll();
                Request request;
                if (!parseRequest(*buffer, &request))
                    return;
                buffer->clear();
                d->requests.append(request);
                const auto handler = d->handlers.constFind(request.path());
                if (handler != d->handlers.cend()) {
                    (*handler)(request, *socket);
                } else if (!d->reply.isEmpty()) {
                    socket->write(d->reply);
                    socket->disconnectFromHost();
                }
            });
        }
    });
    d->server.listen(QHostAddress::LocalHost);
}

RecordingHttpServer::~RecordingHttpServer() = default;

QString RecordingHttpServer::base() const
{
    return QStringLiteral("http://127.0.0.1:%1").arg(d->server.serverPort());
}

QUrl RecordingHttpServer::url(const QString& pathAndQuery) const
{
    return QUrl(base() + pathAndQuery);
}

QByteArray RecordingHttpServer::response(int status, const QByteArray& body, const QByteArray& contentType)
{
    return "HTTP/1.1 " + QByteArray::number(status) + (status < 400 ? " OK" : " Error") +
           "\r\nContent-Type: " + contentType + "\r\nContent-Length: " + QByteArray::number(body.size()) +
           "\r\nConnection: close\r\n\r\n" + body;
}

void RecordingHttpServer::setReply(const QByteArray& rawResponse)
{
    d->reply = rawResponse;
}

void RecordingHttpServer::setHandler(const QByteArray& path, Handler handler)
{
    d->handlers.insert(path, std::move(handler));
}

void RecordingHttpServer::setReplyFor(const QByteArray& path, const QByteArray& rawResponse)
{
    setHandler(path, [rawResponse](const Request&, QTcpSocket& socket) {
        socket.write(rawResponse);
        socket.disconnectFromHost();
    });
}

QList<RecordingHttpServer::Request> RecordingHttpServer::requests() const
{
    return d->requests;
}

QList<RecordingHttpServer::Request> RecordingHttpServer::requestsTo(const QByteArray& path) const
{
    QList<Request> result;
    for (const Request& request : d->requests) {
        if (request.path() == path)
            result.append(request);
    }
    return result;
}

} // namespace Ostrel::Test
