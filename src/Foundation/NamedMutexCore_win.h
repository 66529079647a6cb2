#pragma once

#include "Foundation/ostrel_foundation_export.h"

#include <string>

#include <windows.h>

// The named mutex of the application and installer locks, in Windows API terms only.
namespace Ostrel::Win32 {

enum class MutexClaimState
{
    /// Ours now.
    Held,
    /// Ours now, but its last holder ended without releasing it: whatever it guarded may be
    /// half-written, and the caller says so.
    HeldAbandoned,
    /// Another thread or process holds it.
    Taken,
    /// The system refused to make or open it; `error` says why.
    Failed,
};

struct MutexClaim
{
    MutexClaimState state = MutexClaimState::Failed;
    /// What ReleaseNamedMutex() needs; null unless held.
    HANDLE handle = nullptr;
    DWORD error = 0;
};

/// Makes or opens the mutex `name` and takes it without waiting.
OSTREL_FOUNDATION_EXPORT MutexClaim ClaimNamedMutex(const std::wstring& name);
/// Gives a held mutex back and closes it.
OSTREL_FOUNDATION_EXPORT void ReleaseNamedMutex(HANDLE handle);

} // namespace Ostrel::Win32
