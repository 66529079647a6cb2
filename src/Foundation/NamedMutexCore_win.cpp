#include "Foundation/NamedMutexCore_win.h"

namespace Ostrel::Win32 {

MutexClaim ClaimNamedMutex(const std::wstring& name)
{
    MutexClaim claim;
    HANDLE mutex = ::CreateMutexW(nullptr, FALSE, name.c_str());
    if (!mutex) {
        claim.error = ::GetLastError();
        return claim;
    }
    switch (::WaitForSingleObject(mutex, 0)) {
    case WAIT_OBJECT_0:
        claim.state = MutexClaimState::Held;
        claim.handle = mutex;
        return claim;
    // Its holder died: the system hands it on, and it is ours like a free one.
    case WAIT_ABANDONED:
        claim.state = MutexClaimState::HeldAbandoned;
        claim.handle = mutex;
        return claim;
    case WAIT_TIMEOUT:
        claim.state = MutexClaimState::Taken;
        break;
    default:
        claim.error = ::GetLastError();
        break;
    }
    ::CloseHandle(mutex);
    return claim;
}

void ReleaseNamedMutex(HANDLE handle)
{
    ::ReleaseMutex(handle);
    ::CloseHandle(handle);
}

} // namespace Ostrel::Win32
