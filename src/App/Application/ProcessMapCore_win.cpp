#include "App/Application/ProcessMapCore_win.h"

#include <psapi.h>

namespace Ostrel::Win32 {

std::optional<std::vector<DWORD>> ProcessIds()
{
    // A 4,096-byte buffer: at most 1,024 processes are seen.
    DWORD ids[1024];
    DWORD bytes = 0;
    if (!::K32EnumProcesses(ids, sizeof(ids), &bytes))
        return std::nullopt;
    return std::vector<DWORD>(ids, ids + bytes / sizeof(DWORD));
}

ProcessImage ProcessImagePath(DWORD id)
{
    ProcessImage image;
    // Listed a moment ago, the process may be gone already.
    HANDLE process = ::OpenProcess(PROCESS_QUERY_INFORMATION | PROCESS_VM_READ, FALSE, id);
    if (!process) {
        image.error = ::GetLastError();
        return image;
    }
    // MAX_PATH wide characters: a longer path comes back cut.
    wchar_t path[MAX_PATH] = {};
    const DWORD length = ::K32GetModuleFileNameExW(process, nullptr, path, MAX_PATH);
    if (length == 0)
        image.error = ::GetLastError();
    else
        image.path.assign(path, length);
    ::CloseHandle(process);
    return image;
}

} // namespace Ostrel::Win32
