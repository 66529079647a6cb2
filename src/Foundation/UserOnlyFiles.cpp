#include "Foundation/UserOnlyFiles.h"
#include "Foundation/UserOnlyFiles_p.h"

#include <QDir>
#include <QFileInfo>
#include <QStringList>

namespace Ostrel::Core {

bool UserOnlyFiles::makeFolder(const QString& folder)
{
    const QString target = QDir::cleanPath(QFileInfo(folder).absoluteFilePath());
    // The levels missing now are those this call creates; each is restricted before anything
    // lands in it.
    QStringList missing;
    for (QString level = target; !level.isEmpty() && !QFileInfo::exists(level);) {
        missing.prepend(level);
        const QString parent = QFileInfo(level).path();
        if (parent == level)
            break;
        level = parent;
    }
    for (const QString& level : qAsConst(missing)) {
        if (!QDir().mkdir(level) && !QFileInfo(level).isDir())
            return false;
        UserOnlyPlatform::restrict(level);
    }
    return QFileInfo(target).isDir();
}

bool UserOnlyFiles::prepareFile(const QString& file)
{
    if (!makeFolder(QFileInfo(file).absolutePath()))
        return false;
    return UserOnlyPlatform::createFile(file);
}

} // namespace Ostrel::Core
