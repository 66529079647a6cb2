#include "Ipc/LocalEndpoint_p.h"

#include "Ipc/UserIdentityCore_win.h"

#include <QDeadlineTimer>
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
    const QDeadlineTimer deadline(timeoutMs);
    const auto* path = reinterpret_cast<const wchar_t*>(name.utf16());
    HANDLE pipe = INVALID_HANDLE_VALUE;
    for (;;) {
        // Identification only: the server may learn who we are, never act as us.
        pipe = ::CreateFileW(path, GENERIC_READ | GENERIC_WRITE, 0, nullptr, OPEN_EXISTING,
                             FILE_FLAG_OVERLAPPED | SECURITY_SQOS_PRESENT | SECURITY_IDENTIFICATION, nullptr);
        if (pipe != INVALID_HANDLE_VALUE)
            break;
        const DWORD error = ::GetLastError();
        if (error != ERROR_PIPE_BUSY || deadline.hasExpired()) {
            *why = QStringLiteral("nobody answers at %1 (error %2)").arg(name).arg(error);
            return false;
        }
        ::WaitNamedPipeW(path, static_cast<DWORD>(qMax<qint64>(1, deadline.remainingTime())));
    }
    // A pipe of this name made first by someone else would get the request.
    ULONG serverPid = 0;
    HANDLE server = nullptr;
    bool sameUser = false;
    if (::GetNamedPipeServerProcessId(pipe, &serverPid) &&
        (server = ::OpenProcess(PROCESS_QUERY_LIMITED_INFORMATION, FALSE, serverPid)) != nullptr) {
        const std::wstring serverSid = Win32::ProcessUserSid(server);
        sameUser = !serverSid.empty() && serverSid == Win32::ProcessUserSid(::GetCurrentProcess());
        ::CloseHandle(server);
    }
    if (!sameUser) {
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
