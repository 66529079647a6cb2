#include "Foundation/UserOnlyFiles_p.h"

#include <QFile>
#include <QFileInfo>

namespace Ostrel::Core::UserOnlyPlatform {

// The profile folders that hold the product's data are private to the user already; a file or
// folder created there inherits that.

bool createFile(const QString& file)
{
    if (QFileInfo::exists(file))
        return true;
    QFile created(file);
    return created.open(QIODevice::WriteOnly | QIODevice::NewOnly) || QFileInfo::exists(file);
}

bool restrict(const QString& path)
{
    return QFileInfo::exists(path);
}

} // namespace Ostrel::Core::UserOnlyPlatform
