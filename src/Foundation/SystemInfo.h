#pragma once

#include "Foundation/ostrel_foundation_export.h"

#include <string>

namespace Ostrel::Core {

/// The pointer width of this process in bits: 32 or 64.
OSTREL_FOUNDATION_EXPORT int AppBits();
/// The pointer width of the operating system in bits: 32 or 64. It can exceed AppBits() when a
/// 32-bit build runs on a 64-bit OS; when the OS cannot tell, it falls back to AppBits().
OSTREL_FOUNDATION_EXPORT int OSBits();
/// The OS name and version for humans and reports, e.g. "Debian GNU/Linux 12 (bookworm)".
OSTREL_FOUNDATION_EXPORT std::string SystemName();
/// The processor architecture as the OS reports it, e.g. "x86_64", "arm64", "i386".
OSTREL_FOUNDATION_EXPORT std::string ProcessorArchitecture();

} // namespace Ostrel::Core
