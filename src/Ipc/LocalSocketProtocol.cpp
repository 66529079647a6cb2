#include "Ipc/LocalSocketProtocol.h"

#include "Foundation/Utf8.h"
#include "Ipc/InstanceLock_p.h"
#include "Ipc/IpcFrameReader.h"
#include "Ipc/LocalEndpoint_p.h"
#include "Ipc/LocalListener_p.h"

#include <glog/logging.h>

#include <QCryptographicHash>
#include <QDeadlineTimer>
#include <QLocalSocket>
#include <QThread>
#include <QTimer>

namespace Ostrel::App {

namespace {
constexpr char Acknowledgement = '\x06';
// Between attempts of a second instance whose primary is not listening yet.
constexpr int RetryPauseMs = 50;

// Hashed so that any product name and user make a short, safe file, mutex or pipe name.
QString endpointKey(const QString& product)
{
    const QByteArray key = (product + QLatin1Char('\n') + LocalEndpoint::UserKey()).toUtf8();
    return QStringLiteral("ostrel-") +
           QString::fromLatin1(QCryptographicHash::hash(key, QCryptographicHash::Sha1).toHex().left(16));
}
} // namespace

class LocalSocketProtocol::Impl
{
public:
    QString product;
    QString folder;
    // Why there is no folder of the user's own, if there is none.
    QString folderProblem;
    QString name;
    std::unique_ptr<InstanceLock> lock;
    std::unique_ptr<LocalListener> listener;
    bool decided = false;
    bool secondary = false;
    int maxConnections = DefaultMaxConnections;
    int deadlineMs = DefaultConnectionDeadlineMs;
    int open = 0;
    bool capLogged = false;
};

LocalSocketProtocol::LocalSocketProtocol(const QString& product, QObject* parent)
    : IPCBaseProtocol(parent), d(std::make_unique<Impl>())
{
    d->product = product;
    d->folder = LocalEndpoint::PrivateFolder(&d->folderProblem);
    if (!d->folder.isEmpty())
        d->name = LocalEndpoint::ServerName(d->folder, endpointKey(product));
}

LocalSocketProtocol::~LocalSocketProtocol() = default;

QString LocalSocketProtocol::ServerNameFor(const QString& product)
{
    QString why;
    const QString folder = LocalEndpoint::PrivateFolder(&why);
    return folder.isEmpty() ? QString() : LocalEndpoint::ServerName(folder, endpointKey(product));
}

bool LocalSocketProtocol::Listen()
{
    if (d->decided)
        return IsListening();
    d->decided = true;
    QString why;
    if (d->name.isEmpty()) {
        LOG(WARNING) << "Requests of other processes are off, the product runs without hand-off: "
                     << Util::QStringToUtf8(d->folderProblem);
        return false;
    }
    d->lock = std::make_unique<InstanceLock>(d->folder, endpointKey(d->product));
    if (!d->lock->tryLock(&why)) {
        if (why.isEmpty()) {
            d->secondary = true;
            LOG(INFO) << "Another instance is the primary one and takes the requests of other processes";
        } else {
            LOG(WARNING) << "Requests of other processes are off: " << Util::QStringToUtf8(why);
        }
        d->lock.reset();
        return false;
    }
    d->listener = std::make_unique<LocalListener>(this, [this](QLocalSocket* socket) {
        if (d->open >= d->maxConnections) {
            if (!d->capLogged)
                LOG(WARNING) << "Inter-process requests refused: " << d->open
                             << " connections are open already";
            d->capLogged = true;
            socket->abort();
            socket->deleteLater();
            return;
        }
        ++d->open;
        d->capLogged = false;
        connect(socket, &QObject::destroyed, this, [this]() { --d->open; });
        auto reader = std::make_shared<IpcFrameReader>();
        // The whole connection has a deadline, however slowly its bytes trickle in. The timer is
        // the socket's child, so it ends with the connection: a timer that outlived it would keep
        // its memory for the whole deadline, and a stream of requests would pile them up.
        auto* deadline = new QTimer(socket);
        deadline->setSingleShot(true);
        connect(deadline, &QTimer::timeout, socket, [socket]() {
            LOG(WARNING) << "Inter-process request dropped: the client sent nothing whole in time";
            socket->abort();
        });
        deadline->start(d->deadlineMs);
        connect(socket, &QLocalSocket::disconnected, socket, &QObject::deleteLater);
        connect(socket, &QLocalSocket::readyRead, this, [this, socket, reader]() {
            if (socket->property("answered").toBool()) {
                socket->readAll();
                return;
            }
            const QVector<IpcFrameReader::Message> messages = reader->Feed(socket->readAll());
            if (reader->GetStatus() == IpcFrameReader::Status::Error) {
                LOG(WARNING) << "Inter-process message dropped: " << Util::QStringToUtf8(reader->Error());
                socket->abort();
                return;
            }
            if (messages.isEmpty())
                return;
            // One request a connection: whatever else the client wrote is not read.
            if (messages.size() > 1 || reader->Pending() > 0)
                LOG(WARNING) << "Inter-process messages dropped: a connection carries one request";
            socket->setProperty("answered", true);
            socket->write(QByteArray(1, Acknowledgement));
            socket->flush();
            socket->disconnectFromServer();
            // Out of the socket's handler before anybody reacts: a receiver may run a modal nag.
            LOG(INFO) << "Request of another process received";
            const QString url = messages.first().text;
            QMetaObject::invokeMethod(
                this, [this, url]() { Q_EMIT OnOpenNagReceived(url); }, Qt::QueuedConnection);
        });
        // Bytes that came with the connection are read now: readyRead won't say so again.
        if (socket->bytesAvailable() > 0)
            QMetaObject::invokeMethod(socket, "readyRead", Qt::QueuedConnection);
    });
    if (d->listener->listen(d->name, &why)) {
        LOG(INFO) << "Listening for requests of other processes at " << Util::QStringToUtf8(d->name);
        return true;
    }
    LOG(WARNING) << "Cannot listen for requests of other processes, the product runs without hand-off: "
                 << Util::QStringToUtf8(why);
    d->listener.reset();
    return false;
}

bool LocalSocketProtocol::IsListening() const
{
    return d->listener && d->listener->isListening();
}

bool LocalSocketProtocol::IsSecondary() const
{
    return d->secondary;
}

QString LocalSocketProtocol::ServerName() const
{
    return d->name;
}

void LocalSocketProtocol::SetConnectionLimits(int maxConnections, int deadlineMs)
{
    d->maxConnections = maxConnections;
    d->deadlineMs = deadlineMs;
}

bool LocalSocketProtocol::SendOpenNag(const QString& product, const QString& url, int timeoutMs)
{
    const QByteArray frame = IpcFrameReader::Encode(IpcFrameReader::Type::OpenNag, url);
    if (frame.isEmpty()) {
        LOG(ERROR) << "The nag address is too long to send";
        return false;
    }
    QString why;
    const QString folder = LocalEndpoint::PrivateFolder(&why);
    if (folder.isEmpty()) {
        LOG(WARNING) << "The request is not handed to another instance: " << Util::QStringToUtf8(why);
        return false;
    }
    const QString name = LocalEndpoint::ServerName(folder, endpointKey(product));
    // The primary takes the lock before it listens: it may not be listening yet.
    const QDeadlineTimer deadline(timeoutMs);
    QLocalSocket socket;
    while (!LocalEndpoint::Connect(socket, name, static_cast<int>(deadline.remainingTime()), &why)) {
        if (deadline.hasExpired()) {
            LOG(WARNING) << "No instance took the request in time: " << Util::QStringToUtf8(why);
            return false;
        }
        QThread::msleep(RetryPauseMs);
    }
    socket.write(frame);
    while (socket.bytesAvailable() < 1) {
        if (deadline.hasExpired() || !socket.waitForReadyRead(static_cast<int>(deadline.remainingTime()))) {
            LOG(WARNING) << "The running instance did not confirm the request in time";
            return false;
        }
    }
    return socket.read(1).at(0) == Acknowledgement;
}

} // namespace Ostrel::App
