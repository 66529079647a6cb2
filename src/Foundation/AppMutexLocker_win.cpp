#include "Foundation/AppMutexLocker_p.h"

#include <glog/logging.h>

#include <QString>

#include <windows.h>

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
    HANDLE mutex = ::CreateMutexW(nullptr, FALSE, wide.c_str());
    if (!mutex) {
        LOG(WARNING) << "Cannot create the mutex " << name << ": error " << ::GetLastError();
        return false;
    }
    // An abandoned mutex is one whose holder died: it is ours now all the same.
    const DWORD wait = ::WaitForSingleObject(mutex, 0);
    if (wait != WAIT_OBJECT_0 && wait != WAIT_ABANDONED) {
        ::CloseHandle(mutex);
        return false;
    }
    handle = reinterpret_cast<Handle>(mutex);
    return true;
}

void release(Handle handle)
{
    HANDLE mutex = reinterpret_cast<HANDLE>(handle);
    ::ReleaseMutex(mutex);
    ::CloseHandle(mutex);
}

} // namespace Ostrel::Util::AppMutexPlatform
