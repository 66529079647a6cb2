#pragma once

#include <QString>

class QLocalSocket;

// Where the requests of other processes meet the primary instance, one definition per platform.
namespace Ostrel::App::LocalEndpoint {

/// The folder that only the current user can reach, for the lock and the socket; empty, with
/// `why`, when there is none. Never a shared folder: a name there could be taken by anybody.
QString PrivateFolder(QString* why);
/// Tells the current user apart in names: the user id, or the session and the user's SID.
QString UserKey();
/// The address of the server called `key` in `folder`.
QString ServerName(const QString& folder, const QString& key);
/// Connects `socket` to the server at `name` if it is the current user's own; false with `why`
/// otherwise, or when nobody listens there within `timeoutMs`.
bool Connect(QLocalSocket& socket, const QString& name, int timeoutMs, QString* why);

} // namespace Ostrel::App::LocalEndpoint
