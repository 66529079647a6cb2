#pragma once

#include "Foundation/ostrel_foundation_export.h"

#include <cstdint>
#include <string>

// What the system reports about the machine, in Windows API terms only.
namespace Ostrel::Win32 {

/// 64 on a 64-bit Windows, whatever this build is; 32 otherwise.
OSTREL_FOUNDATION_EXPORT int OsBits();
/// Total physical memory in bytes, or 0 when unknown.
OSTREL_FOUNDATION_EXPORT std::uint64_t TotalPhysicalMemory();
/// The first processor's marketing name, trimmed; empty when the system does not say.
OSTREL_FOUNDATION_EXPORT std::wstring CpuModelName();

} // namespace Ostrel::Win32
