#include "Foundation/AppMutexLocker_p.h"

#include <glog/logging.h>

// After glog: windows.h defines ERROR, which glog refuses to follow.
#include "Foundation/NamedMutexCore_win.h"

#include <QString>

namespace Ostrel::Util::AppMutexPlatform {

// The name has no "Global\" prefix: the mutex is per session, like the lock file elsewhere is
// per user. A backslash would select a kernel namespace: escaping it, and the escape character
// itself, keeps every name literal and distinct.
bool acquire(const std::string& name, Handle& handle)
{
    std::wstring wide;
    for (wchar_t c : QString::fromStdString(name).toStdWString()) {
        if (c == L'\\')
            wide += L"%5C";
        else if (c == L'%')
            wide += L"%25";
        else
            wide += c;
    }
    const Win32::MutexClaim claim = Win32::ClaimNamedMutex(wide);
    switch (claim.state) {
    case Win32::MutexClaimState::Held:
        break;
    case Win32::MutexClaimState::HeldAbandoned:
        LOG(WARNING) << "The mutex " << name
                     << " was left by a process that ended without releasing it; taken over";
        break;
    case Win32::MutexClaimState::Taken:
        return false;
    case Win32::MutexClaimState::Failed:
        LOG(WARNING) << "Cannot create the mutex " << name << ": error " << claim.error;
        return false;
    }
    handle = reinterpret_cast<Handle>(claim.handle);
    return true;
}

void release(Handle handle)
{
    Win32::ReleaseNamedMutex(reinterpret_cast<HANDLE>(handle));
}

} // namespace Ostrel::Util::AppMutexPlatform
