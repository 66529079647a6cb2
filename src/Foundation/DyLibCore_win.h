#pragma once

#include "Foundation/ostrel_foundation_export.h"

#include <string>

#include <windows.h>

// The loader behind DyLib, in Windows API terms only.
namespace Ostrel::Win32 {

/// The library `utf8Name` loaded, or null with `error` (ERROR_MOD_NOT_FOUND for a missing file,
/// ERROR_INVALID_PARAMETER for an empty or malformed name).
OSTREL_FOUNDATION_EXPORT HMODULE LoadDyLib(const std::string& utf8Name, DWORD* error);
/// The address of `name` in `module`, or null with `error` (ERROR_PROC_NOT_FOUND when the
/// library lacks it).
OSTREL_FOUNDATION_EXPORT void* FindDyLibSymbol(HMODULE module, const char* name, DWORD* error);
OSTREL_FOUNDATION_EXPORT void FreeDyLib(HMODULE module);

} // namespace Ostrel::Win32
