#include "App/Application/ProcessList_p.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>

namespace Ostrel::App::ProcessList {

std::optional<std::vector<ProcessId>> processIds()
{
    const QDir proc(QStringLiteral("/proc"));
    if (!proc.exists())
        return std::nullopt;
    std::vector<ProcessId> ids;
    for (const QString& entry : proc.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        bool isNumber = false;
        const uint id = entry.toUInt(&isNumber);
        if (isNumber)
            ids.push_back(id);
    }
    std::sort(ids.begin(), ids.end());
    return ids;
}

QString imagePath(ProcessId id)
{
    // The link is unreadable for other users' processes, like OpenProcess is on Windows.
    return QFileInfo(QStringLiteral("/proc/%1/exe").arg(id)).symLinkTarget();
}

} // namespace Ostrel::App::ProcessList
