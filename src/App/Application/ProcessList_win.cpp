#include "App/Application/ProcessList_p.h"

#include <windows.h>
#include <psapi.h>

namespace Ostrel::App::ProcessList {

std::optional<std::vector<ProcessId>> processIds()
{
    // A 4,096-byte buffer: at most 1,024 processes are seen.
    DWORD ids[1024];
    DWORD bytes = 0;
    if (!K32EnumProcesses(ids, sizeof(ids), &bytes))
        return std::nullopt;
    return std::vector<ProcessId>(ids, ids + bytes / sizeof(DWORD));
}

QString imagePath(ProcessId id)
{
    wchar_t path[MAX_PATH] = {};
    // Failures are not tested: a process that can't be opened leaves the buffer empty.
    HANDLE process = OpenProcess(PROCESS_QUERY_INFORMATION | PROCESS_VM_READ, FALSE, id);
    K32GetModuleFileNameExW(process, nullptr, path, MAX_PATH);
    CloseHandle(process);
    return QString::fromWCharArray(path);
}

} // namespace Ostrel::App::ProcessList
