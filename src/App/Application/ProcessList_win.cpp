#include "App/Application/ProcessList_p.h"

#include "App/Application/ProcessMapCore_win.h"

namespace Ostrel::App::ProcessList {

std::optional<std::vector<ProcessId>> processIds()
{
    auto ids = Win32::ProcessIds();
    if (!ids)
        return std::nullopt;
    return std::vector<ProcessId>(ids->begin(), ids->end());
}

// A process that ended since it was listed, or one we may not open, has no path: its empty name
// still goes to the caller's filter, which decides whether to keep it.
QString imagePath(ProcessId id)
{
    return QString::fromStdWString(Win32::ProcessImagePath(id).path);
}

} // namespace Ostrel::App::ProcessList
