#pragma once

#include <QList>
#include <QObject>
#include <QPair>
#include <QUrl>

#include <functional>
#include <memory>

class QTcpSocket;

namespace Ostrel::Test {

/// An HTTP server on 127.0.0.1 for tests that speak HTTP: it records every request (line,
/// headers as sent, body) and answers with a fixed reply, with nothing at all, or, for a path
/// that the test names, through a handler of the test's own (a redirect, an endless body).
/// One request a connection; the fixed replies close it.
class RecordingHttpServer : public QObject
{
public:
    struct Request
    {
        QByteArray line; // "GET /path?query HTTP/1.1"
        QByteArray method;
        QByteArray target; // path and query, as sent
        QList<QPair<QByteArray, QByteArray>> headers;
        QByteArray body;

        QByteArray path() const;
        /// The value of the header named exactly `name`, or "<none>".
        QByteArray header(const QByteArray& name) const;
    };
    /// Answers one request on its socket; may keep writing after it returns.
    using Handler = std::function<void(const Request&, QTcpSocket&)>;

    RecordingHttpServer();
    ~RecordingHttpServer() override;

    /// "http://127.0.0.1:<port>"
    QString base() const;
    QUrl url(const QString& pathAndQuery) const;

    /// The bytes of a complete reply that closes the connection.
    static QByteArray response(int status, const QByteArray& body = {},
                               const QByteArray& contentType = QByteArrayLiteral("text/plain"));
    /// What every request gets that no handler takes; empty: no answer at all. The first reply is
    /// response(200).
    void setReply(const QByteArray& rawResponse);
    /// Requests for `path` (without the query) go to `handler` instead.
    void setHandler(const QByteArray& path, Handler handler);
    /// A fixed reply for one path.
    void setReplyFor(const QByteArray& path, const QByteArray& rawResponse);

    QList<Request> requests() const;
    /// The requests for one path, in order.
    QList<Request> requestsTo(const QByteArray& path) const;

private:
    class Impl;
    std::unique_ptr<Impl> d;
};

} // namespace Ostrel::Test
