#include "Ipc/LocalEndpoint_p.h"

#include "Ipc/NamedPipeCore_win.h"
#include "Ipc/UserIdentityCore_win.h"

#include <QLocalSocket>

#include <windows.h>

namespace Ostrel::App::LocalEndpoint {

// Pipes live in their own namespace, reachable by their name alone: no folder is needed. Their
// name carries the session and the user's SID, and the server's DACL admits that user only.
QString PrivateFolder(QString* why)
{
    DWORD error = 0;
    if (Win32::CurrentUserKey(&error).empty()) {
        *why = QStringLiteral("the user's SID or session can't be read (error %1)").arg(error);
        return {};
    }
    return QStringLiteral("\\\\.\\pipe");
}

QString UserKey()
{
    return QString::fromStdWString(Win32::CurrentUserKey());
}

QString ServerName(const QString& folder, const QString& key)
{
    return folder + QLatin1Char('\\') + key + QLatin1Char('-') + UserKey();
}

bool Connect(QLocalSocket& socket, const QString& name, int timeoutMs, QString* why)
{
    DWORD error = 0;
    HANDLE pipe = Win32::ConnectPipe(name.toStdWString(), static_cast<DWORD>(qMax(0, timeoutMs)), &error);
    if (pipe == INVALID_HANDLE_VALUE) {
        *why = QStringLiteral("nobody answers at %1 (error %2)").arg(name).arg(error);
        return false;
    }
    if (!Win32::PipeServerIsCurrentUser(pipe)) {
        ::CloseHandle(pipe);
        *why = QStringLiteral("the server at %1 runs as another user").arg(name);
        return false;
    }
    if (!socket.setSocketDescriptor(reinterpret_cast<qintptr>(pipe))) {
        ::CloseHandle(pipe);
        *why = socket.errorString();
        return false;
    }
    return true;
}

} // namespace Ostrel::App::LocalEndpoint
