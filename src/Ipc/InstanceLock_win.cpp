#include "Ipc/InstanceLock_p.h"

#include "Foundation/Utf8.h"
#include "Ipc/LocalEndpoint_p.h"

#include <glog/logging.h>

// After glog: windows.h defines ERROR, which glog refuses to follow.
#include "Foundation/NamedMutexCore_win.h"

namespace Ostrel::App {

class InstanceLock::Impl
{
public:
    QString name;
    HANDLE mutex = nullptr;
};

// "Local\" is the session's namespace, and the name carries the session and the user's SID: one
// lock per session and user.
InstanceLock::InstanceLock(const QString&, const QString& key) : d(std::make_unique<Impl>())
{
    d->name = QStringLiteral("Local\\") + key + QLatin1Char('-') + LocalEndpoint::UserKey();
}

InstanceLock::~InstanceLock()
{
    if (d->mutex)
        Win32::ReleaseNamedMutex(d->mutex);
}

bool InstanceLock::tryLock(QString* why)
{
    if (d->mutex)
        return true;
    const Win32::MutexClaim claim = Win32::ClaimNamedMutex(d->name.toStdWString());
    switch (claim.state) {
    case Win32::MutexClaimState::HeldAbandoned:
        LOG(WARNING) << "The primary instance ended without releasing " << Util::QStringToUtf8(d->name)
                     << "; this process takes over";
        [[fallthrough]];
    case Win32::MutexClaimState::Held:
        d->mutex = claim.handle;
        return true;
    case Win32::MutexClaimState::Taken:
        return false;
    case Win32::MutexClaimState::Failed:
        *why = QStringLiteral("the mutex %1 can't be made (error %2)").arg(d->name).arg(claim.error);
        return false;
    }
    return false;
}

} // namespace Ostrel::App
