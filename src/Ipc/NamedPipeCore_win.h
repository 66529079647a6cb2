#pragma once

#include <string>

#include <windows.h>

// The named pipe of the inter-process requests, in Windows API terms only.
namespace Ostrel::Win32 {

/// A security descriptor that admits the user `sid` alone, with full access; null, with
/// `error`, when it can't be made. Freed with LocalFree.
PSECURITY_DESCRIPTOR UserOnlyDescriptor(const std::wstring& sid, DWORD* error);

/// A new overlapped instance of the pipe `name`, local clients only. The `first` instance is
/// exclusive: it is refused (ERROR_ACCESS_DENIED) when a pipe of that name exists already, so
/// nobody else's pipe is ever taken for ours. INVALID_HANDLE_VALUE, with `error`, on failure.
HANDLE CreatePipeInstance(const std::wstring& name, PSECURITY_DESCRIPTOR descriptor, bool first,
                          DWORD* error);

/// The client end of the pipe `name`, opened for overlapped use, waiting up to `timeoutMs` while
/// every instance is busy; INVALID_HANDLE_VALUE with `error` (ERROR_FILE_NOT_FOUND when nobody
/// listens, ERROR_PIPE_BUSY when nobody became free in time).
HANDLE ConnectPipe(const std::wstring& name, DWORD timeoutMs, DWORD* error);

/// Whether the server end of the client `pipe` runs as the user of this process.
bool PipeServerIsCurrentUser(HANDLE pipe);

} // namespace Ostrel::Win32
