#include "Ipc/InstanceLock_p.h"

#include "Ipc/LocalEndpoint_p.h"

#include <windows.h>

namespace Ostrel::App {

class InstanceLock::Impl
{
public:
    QString name;
    HANDLE mutex = nullptr;
    bool held = false;
};

// "Local\" is the session's namespace, and the name carries the session and the user's SID: one
// lock per session and user.
InstanceLock::InstanceLock(const QString&, const QString& key) : d(std::make_unique<Impl>())
{
    d->name = QStringLiteral("Local\\") + key + QLatin1Char('-') + LocalEndpoint::UserKey();
}

InstanceLock::~InstanceLock()
{
    if (d->held)
        ::ReleaseMutex(d->mutex);
    if (d->mutex)
        ::CloseHandle(d->mutex);
}

bool InstanceLock::tryLock(QString* why)
{
    if (d->held)
        return true;
    if (!d->mutex) {
        d->mutex = ::CreateMutexW(nullptr, FALSE, reinterpret_cast<const wchar_t*>(d->name.utf16()));
        if (!d->mutex) {
            *why = QStringLiteral("the mutex %1 can't be made (error %2)").arg(d->name).arg(::GetLastError());
            return false;
        }
    }
    // An abandoned mutex is one whose holder died: it is ours now all the same.
    const DWORD wait = ::WaitForSingleObject(d->mutex, 0);
    d->held = wait == WAIT_OBJECT_0 || wait == WAIT_ABANDONED;
    return d->held;
}

} // namespace Ostrel::App
