#include "Ipc/LocalSocketName_p.h"

#include <QDir>
#include <QStandardPaths>

#include <pwd.h>
#include <unistd.h>

namespace Ostrel::App {

QString LocalSocketPath(const QString& baseName)
{
    // The runtime folder belongs to the user alone; the temporary folder is the fallback.
    QString folder = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
    if (folder.isEmpty())
        folder = QDir::tempPath();
    return folder + QLatin1Char('/') + baseName;
}

QString CurrentUserName()
{
    if (const passwd* entry = getpwuid(geteuid()))
        return QString::fromLocal8Bit(entry->pw_name);
    return QString::number(geteuid());
}

} // namespace Ostrel::App
