#include "App/Application/ProcessMapCore_win.h"

#include <psapi.h>

namespace Ostrel::Win32 {

std::optional<std::vector<DWORD>> ProcessIds()
{
    // The system does not say how many there are: a full buffer may have been cut short.
    std::vector<DWORD> ids(1024);
    for (;;) {
        DWORD bytes = 0;
        const DWORD capacity = static_cast<DWORD>(ids.size() * sizeof(DWORD));
        if (!::K32EnumProcesses(ids.data(), capacity, &bytes))
            return std::nullopt;
        if (bytes < capacity) {
            ids.resize(bytes / sizeof(DWORD));
            return ids;
        }
        ids.resize(ids.size() * 2);
    }
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
    std::wstring path(MAX_PATH, L'\0');
    for (;;) {
        const DWORD length =
            ::K32GetModuleFileNameExW(process, nullptr, path.data(), static_cast<DWORD>(path.size()));
        if (length == 0) {
            image.error = ::GetLastError();
            break;
        }
        // A path that filled the buffer may have been cut: long paths exceed MAX_PATH.
        if (length < path.size() - 1 || path.size() >= 32768) {
            path.resize(length);
            image.path = std::move(path);
            break;
        }
        path.resize(path.size() * 2);
    }
    ::CloseHandle(process);
    return image;
}

} // namespace Ostrel::Win32
