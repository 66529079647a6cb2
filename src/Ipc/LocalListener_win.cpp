#include "Ipc/LocalListener_p.h"

#include <glog/logging.h>

// After glog: windows.h defines ERROR, which glog refuses to follow.
#include "Foundation/Utf8.h"
#include "Ipc/NamedPipeCore_win.h"
#include "Ipc/UserIdentityCore_win.h"

#include <QLocalSocket>
#include <QObject>
#include <QWinEventNotifier>

#include <windows.h>

namespace Ostrel::App {

// Qt's local server can't make the first instance exclusive nor refuse remote clients: the pipe
// instances are made here, and each connected one is handed to a QLocalSocket.
class LocalListener::Impl
{
public:
    QObject* parent = nullptr;
    std::function<void(QLocalSocket*)> accepted;
    QString name;
    PSECURITY_DESCRIPTOR descriptor = nullptr;
    HANDLE pipe = INVALID_HANDLE_VALUE;
    OVERLAPPED overlapped = {};
    QWinEventNotifier* notifier = nullptr;
    bool listening = false;

    ~Impl()
    {
        delete notifier;
        if (pipe != INVALID_HANDLE_VALUE) {
            ::CancelIo(pipe);
            ::CloseHandle(pipe);
        }
        if (overlapped.hEvent)
            ::CloseHandle(overlapped.hEvent);
        if (descriptor)
            ::LocalFree(descriptor);
    }

    // A new instance of the pipe, waiting for the next client.
    bool makeInstance(bool first, QString* why)
    {
        DWORD error = 0;
        pipe = Win32::CreatePipeInstance(name.toStdWString(), descriptor, first, &error);
        if (pipe == INVALID_HANDLE_VALUE) {
            *why = QStringLiteral("the pipe %1 can't be made (error %2)").arg(name).arg(error);
            return false;
        }
        ::ResetEvent(overlapped.hEvent);
        if (!::ConnectNamedPipe(pipe, &overlapped)) {
            const DWORD error = ::GetLastError();
            if (error == ERROR_PIPE_CONNECTED) {
                ::SetEvent(overlapped.hEvent);
            } else if (error != ERROR_IO_PENDING) {
                *why = QStringLiteral("the pipe %1 can't wait for clients (error %2)").arg(name).arg(error);
                ::CloseHandle(pipe);
                pipe = INVALID_HANDLE_VALUE;
                return false;
            }
        }
        return true;
    }

    void onConnected()
    {
        DWORD ignored = 0;
        HANDLE connected = pipe;
        pipe = INVALID_HANDLE_VALUE;
        const bool ok = ::GetOverlappedResult(connected, &overlapped, &ignored, FALSE) != 0;
        QString why;
        if (!makeInstance(false, &why)) {
            LOG(ERROR) << "Inter-process requests stop: " << Util::QStringToUtf8(why);
            listening = false;
            notifier->setEnabled(false);
        }
        if (!ok) {
            ::CloseHandle(connected);
            return;
        }
        auto* socket = new QLocalSocket(parent);
        if (!socket->setSocketDescriptor(reinterpret_cast<qintptr>(connected))) {
            ::CloseHandle(connected);
            delete socket;
            return;
        }
        accepted(socket);
    }
};

LocalListener::LocalListener(QObject* parent, std::function<void(QLocalSocket*)> accepted)
    : d(std::make_unique<Impl>())
{
    d->parent = parent;
    d->accepted = std::move(accepted);
}

LocalListener::~LocalListener() = default;

bool LocalListener::listen(const QString& name, QString* why)
{
    d->name = name;
    DWORD error = 0;
    d->descriptor = Win32::UserOnlyDescriptor(Win32::ProcessUserSid(::GetCurrentProcess()), &error);
    if (!d->descriptor) {
        *why = QStringLiteral("the pipe's access rules can't be made (error %1)").arg(error);
        return false;
    }
    d->overlapped.hEvent = ::CreateEventW(nullptr, TRUE, FALSE, nullptr);
    // The first instance is exclusive: if somebody made a pipe of this name first, this fails.
    if (!d->overlapped.hEvent || !d->makeInstance(true, why))
        return false;
    d->notifier = new QWinEventNotifier(d->overlapped.hEvent);
    QObject::connect(d->notifier, &QWinEventNotifier::activated, d->parent, [this]() { d->onConnected(); });
    d->listening = true;
    return true;
}

bool LocalListener::isListening() const
{
    return d->listening;
}

} // namespace Ostrel::App
