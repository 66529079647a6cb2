#pragma once

#include <optional>
#include <string>
#include <vector>

#include <windows.h>

// The running processes, in Windows API terms only.
namespace Ostrel::Win32 {

/// The ids of the running processes in the order the system gives them, at most 1,024; nullopt
/// when the listing failed.
std::optional<std::vector<DWORD>> ProcessIds();

struct ProcessImage
{
    std::wstring path;
    /// Why `path` is empty: ERROR_INVALID_PARAMETER for a process that has ended since it was
    /// listed, ERROR_ACCESS_DENIED for one we may not look at.
    DWORD error = ERROR_SUCCESS;
};

/// The full path of the executable of process `id`, cut at MAX_PATH characters.
ProcessImage ProcessImagePath(DWORD id);

} // namespace Ostrel::Win32
