#pragma once

#include <string>

#include <windows.h>

// Who a process runs as, in Windows API terms only: the pieces that keep the names of the
// inter-process lock and pipe apart between users and sessions.
namespace Ostrel::Win32 {

/// The SID of the user of `token`, as text; empty, with `error`, when it can't be read.
std::wstring TokenUserSid(HANDLE token, DWORD* error = nullptr);
/// The same for the user `process` runs as.
std::wstring ProcessUserSid(HANDLE process, DWORD* error = nullptr);
/// "<session>-<SID>" of `token`; empty, with `error`, when either can't be read: a name without
/// the SID would be shared by every user of the session.
std::wstring TokenUserKey(HANDLE token, DWORD* error = nullptr);
/// TokenUserKey() of the current process.
std::wstring CurrentUserKey(DWORD* error = nullptr);

} // namespace Ostrel::Win32
