#include "Ipc/LocalEndpoint_p.h"

#include <QFile>
#include <QLocalSocket>

#include <cerrno>
#include <cstring>
#include <sys/socket.h>
#include <sys/stat.h>
#include <unistd.h>

namespace Ostrel::App::LocalEndpoint {

QString PrivateFolder(QString* why)
{
    // Only the session's runtime folder: Qt's fallback is a predictable name in the shared
    // temporary folder.
    const QByteArray folder = qgetenv("XDG_RUNTIME_DIR");
    if (folder.isEmpty()) {
        *why = QStringLiteral("XDG_RUNTIME_DIR is not set");
        return {};
    }
    struct stat info = {};
    if (::lstat(folder.constData(), &info) != 0) {
        *why = QStringLiteral("the runtime folder %1 can't be read: %2")
                   .arg(QFile::decodeName(folder), QString::fromLocal8Bit(std::strerror(errno)));
        return {};
    }
    if (!S_ISDIR(info.st_mode) || info.st_uid != ::geteuid() || (info.st_mode & 07777) != 0700) {
        *why = QStringLiteral("the runtime folder %1 is not a folder of this user alone (owner %2, mode %3)")
                   .arg(QFile::decodeName(folder))
                   .arg(info.st_uid)
                   .arg(info.st_mode & 07777, 0, 8);
        return {};
    }
    return QFile::decodeName(folder);
}

QString UserKey()
{
    return QString::number(::geteuid());
}

QString ServerName(const QString& folder, const QString& key)
{
    return folder + QLatin1Char('/') + key;
}

bool Connect(QLocalSocket& socket, const QString& name, int timeoutMs, QString* why)
{
    // A socket that another user put in its place would get the request: look before knocking.
    struct stat info = {};
    if (::lstat(QFile::encodeName(name).constData(), &info) != 0) {
        *why = QStringLiteral("nobody listens at %1").arg(name);
        return false;
    }
    if (!S_ISSOCK(info.st_mode) || info.st_uid != ::geteuid()) {
        *why = QStringLiteral("%1 is not a socket of this user").arg(name);
        return false;
    }
    socket.connectToServer(name);
    if (!socket.waitForConnected(timeoutMs)) {
        *why = QStringLiteral("nobody answers at %1: %2").arg(name, socket.errorString());
        socket.abort();
        return false;
    }
    ucred peer = {};
    socklen_t size = sizeof(peer);
    if (::getsockopt(static_cast<int>(socket.socketDescriptor()), SOL_SOCKET, SO_PEERCRED, &peer, &size) !=
            0 ||
        peer.uid != ::geteuid()) {
        *why = QStringLiteral("the server at %1 runs as another user").arg(name);
        socket.abort();
        return false;
    }
    return true;
}

} // namespace Ostrel::App::LocalEndpoint
