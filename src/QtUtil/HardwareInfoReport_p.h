#pragma once

#include <QString>

#include <cstdint>

// What the system reports differently on each platform; one HardwareInfoReport_<platform>.cpp
// implements these.
namespace Ostrel::Util::Platform {

/// The processor's marketing name, or empty when the system does not say.
QString cpuModelName();

/// Total physical memory in bytes, or 0 when unknown.
std::uint64_t totalPhysicalMemory();

} // namespace Ostrel::Util::Platform
