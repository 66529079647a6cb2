#pragma once

#include <QString>

#include <cstdint>
#include <optional>
#include <vector>

// The platform's process listing, behind which GetCurrentProcessMap stays the same everywhere.
namespace Ostrel::App::ProcessList {

using ProcessId = std::uint32_t;

/// The ids of the running processes in the order the system gives them; empty when the listing failed.
std::optional<std::vector<ProcessId>> processIds();

/// The full path of the process's executable, or empty when it can't be read.
QString imagePath(ProcessId id);

} // namespace Ostrel::App::ProcessList
