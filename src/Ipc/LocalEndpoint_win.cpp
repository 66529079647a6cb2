#include "Ipc/LocalEndpoint_p.h"

#include <QDeadlineTimer>
#include <QLocalSocket>

#include <windows.h>

#include <sddl.h>

namespace Ostrel::App::LocalEndpoint {

namespace {

// The SID of the user of `token`, as text; empty when it can't be read.
QString tokenUserSid(HANDLE token)
{
    DWORD size = 0;
    ::GetTokenInformation(token, TokenUser, nullptr, 0, &size);
    QByteArray buffer(static_cast<int>(size), '\0');
    if (size == 0 || !::GetTokenInformation(token, TokenUser, buffer.data(), size, &size))
        return {};
    wchar_t* text = nullptr;
    if (!::ConvertSidToStringSidW(reinterpret_cast<TOKEN_USER*>(buffer.data())->User.Sid, &text))
        return {};
    const QString sid = QString::fromWCharArray(text);
    ::LocalFree(text);
    return sid;
}

QString processUserSid(HANDLE process)
{
    HANDLE token = nullptr;
    if (!::OpenProcessToken(process, TOKEN_QUERY, &token))
        return {};
    const QString sid = tokenUserSid(token);
    ::CloseHandle(token);
    return sid;
}

} // namespace

// Pipes live in their own namespace, reachable by their name alone: no folder is needed. Their
// name carries the session and the user's SID, and the server's DACL admits that user only.
QString PrivateFolder(QString* why)
{
    if (processUserSid(::GetCurrentProcess()).isEmpty()) {
        *why = QStringLiteral("the user's SID can't be read");
        return {};
    }
    return QStringLiteral("\\\\.\\pipe");
}

QString UserKey()
{
    DWORD session = 0;
    ::ProcessIdToSessionId(::GetCurrentProcessId(), &session);
    return QString::number(session) + QLatin1Char('-') + processUserSid(::GetCurrentProcess());
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
        const QString serverSid = processUserSid(server);
        sameUser = !serverSid.isEmpty() && serverSid == processUserSid(::GetCurrentProcess());
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
