#include "Ipc/LocalListener_p.h"

#include <glog/logging.h>

#include <QFile>
#include <QLocalServer>
#include <QLocalSocket>

#include <cerrno>
#include <sys/socket.h>
#include <sys/stat.h>
#include <unistd.h>

namespace Ostrel::App {

namespace {
bool peerIsThisUser(qintptr descriptor)
{
    ucred peer = {};
    socklen_t size = sizeof(peer);
    return ::getsockopt(static_cast<int>(descriptor), SOL_SOCKET, SO_PEERCRED, &peer, &size) == 0 &&
           peer.uid == ::geteuid();
}
} // namespace

class LocalListener::Impl
{
public:
    QLocalServer server;
    std::function<void(QLocalSocket*)> accepted;
};

LocalListener::LocalListener(QObject* parent, std::function<void(QLocalSocket*)> accepted)
    : d(std::make_unique<Impl>())
{
    d->accepted = std::move(accepted);
    QObject::connect(&d->server, &QLocalServer::newConnection, parent, [this, parent]() {
        while (QLocalSocket* socket = d->server.nextPendingConnection()) {
            if (!peerIsThisUser(socket->socketDescriptor())) {
                LOG(WARNING) << "Inter-process request refused: the client runs as another user";
                socket->abort();
                socket->deleteLater();
                continue;
            }
            socket->setParent(parent);
            d->accepted(socket);
        }
    });
}

LocalListener::~LocalListener() = default;

bool LocalListener::listen(const QString& name, QString* why)
{
    const QByteArray path = QFile::encodeName(name);
    struct stat info = {};
    if (::lstat(path.constData(), &info) == 0) {
        if (!S_ISSOCK(info.st_mode) || info.st_uid != ::geteuid()) {
            *why =
                QStringLiteral("%1 is taken by something that is not a socket of this user; it is left alone")
                    .arg(name);
            return false;
        }
        // The lock says that no instance is alive: the socket was left by one that died.
        ::unlink(path.constData());
    }
    if (d->server.listen(name))
        return true;
    *why = d->server.errorString();
    return false;
}

bool LocalListener::isListening() const
{
    return d->server.isListening();
}

} // namespace Ostrel::App
