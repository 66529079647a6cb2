#include "Ipc/LocalSocketProtocol.h"

#include "Ipc/IpcFrameReader.h"
#include "Ipc/LocalSocketName_p.h"

#include <glog/logging.h>

#include <QCryptographicHash>
#include <QLocalServer>
#include <QLocalSocket>
#include <QPointer>
#include <QTimer>

namespace Ostrel::App {

namespace {
constexpr char Acknowledgement = '\x06';
// A client that connects and then says nothing must not hold a connection for ever.
constexpr int IdleConnectionMs = 5000;
} // namespace

class LocalSocketProtocol::Impl
{
public:
    QString name;
    QLocalServer server;
};

LocalSocketProtocol::LocalSocketProtocol(const QString& product, QObject* parent)
    : IPCBaseProtocol(parent)
    , d(std::make_unique<Impl>())
{
    d->name = ServerNameFor(product);
    d->server.setSocketOptions(QLocalServer::UserAccessOption);
    connect(&d->server, &QLocalServer::newConnection, this, [this]() {
        while (QLocalSocket* socket = d->server.nextPendingConnection()) {
            auto reader = std::make_shared<IpcFrameReader>();
            auto* idle = new QTimer(socket);
            idle->setSingleShot(true);
            connect(idle, &QTimer::timeout, socket, [socket]() {
                LOG(WARNING) << "Inter-process request dropped: the client sent nothing in time";
                socket->abort();
            });
            idle->start(IdleConnectionMs);
            connect(socket, &QLocalSocket::disconnected, socket, &QObject::deleteLater);
            connect(socket, &QLocalSocket::readyRead, this, [this, socket, reader]() {
                const QVector<IpcFrameReader::Message> messages = reader->Feed(socket->readAll());
                if (reader->GetStatus() == IpcFrameReader::Status::Error) {
                    LOG(WARNING) << "Inter-process message dropped: " << reader->Error().toStdString();
                    socket->abort();
                    return;
                }
                if (messages.isEmpty())
                    return;
                socket->write(QByteArray(1, Acknowledgement));
                socket->flush();
                socket->disconnectFromServer();
                // Out of the socket's handler before anybody reacts: a receiver may run a modal nag.
                for (const IpcFrameReader::Message& message : messages) {
                    const QString url = message.text;
                    QMetaObject::invokeMethod(this, [this, url]() { Q_EMIT OnOpenNagReceived(url); },
                                              Qt::QueuedConnection);
                }
            });
        }
    });
}

LocalSocketProtocol::~LocalSocketProtocol() = default;

QString LocalSocketProtocol::ServerNameFor(const QString& product)
{
    // Hashed so that any product name and user name make a short, safe file or pipe name.
    const QByteArray key = (product + QLatin1Char('\n') + CurrentUserName()).toUtf8();
    const QString digest =
        QString::fromLatin1(QCryptographicHash::hash(key, QCryptographicHash::Sha1).toHex().left(16));
    return LocalSocketPath(QStringLiteral("ostrel-") + digest);
}

bool LocalSocketProtocol::Listen()
{
    if (d->server.isListening())
        return true;
    // Asked before listening: with access options the server would replace the name of a live
    // instance instead of failing.
    QLocalSocket probe;
    probe.connectToServer(d->name);
    if (probe.waitForConnected(500)) {
        probe.abort();
        LOG(INFO) << "Another instance already listens for requests";
        return false;
    }
    // Nobody answers: whatever socket file is there was left by an instance that died.
    QLocalServer::removeServer(d->name);
    if (d->server.listen(d->name))
        return true;
    LOG(ERROR) << "Cannot listen for inter-process requests: " << d->server.errorString().toStdString();
    return false;
}

bool LocalSocketProtocol::IsListening() const
{
    return d->server.isListening();
}

QString LocalSocketProtocol::ServerName() const
{
    return d->name;
}

bool LocalSocketProtocol::SendOpenNag(const QString& product, const QString& url, int timeoutMs)
{
    const QByteArray frame = IpcFrameReader::Encode(IpcFrameReader::Type::OpenNag, url);
    if (frame.isEmpty()) {
        LOG(ERROR) << "The nag address is too long to send";
        return false;
    }
    QLocalSocket socket;
    socket.connectToServer(ServerNameFor(product));
    if (!socket.waitForConnected(timeoutMs))
        return false;
    socket.write(frame);
    if (!socket.waitForBytesWritten(timeoutMs))
        return false;
    while (socket.bytesAvailable() < 1) {
        if (!socket.waitForReadyRead(timeoutMs))
            return false;
    }
    return socket.read(1).at(0) == Acknowledgement;
}

} // namespace Ostrel::App
