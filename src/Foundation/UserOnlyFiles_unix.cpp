#include "Foundation/UserOnlyFiles_p.h"

#include <QFile>

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace Ostrel::Core::UserOnlyPlatform {

bool createFile(const QString& file)
{
    // Created with its final mode, so that no other user can open it in between.
    const int fd = ::open(QFile::encodeName(file).constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600);
    if (fd >= 0) {
        ::close(fd);
        return true;
    }
    return errno == EEXIST;
}

bool restrict(const QString& path)
{
    struct stat info = {};
    const QByteArray name = QFile::encodeName(path);
    if (::stat(name.constData(), &info) != 0)
        return false;
    const mode_t wanted = info.st_mode & (S_IRWXU | S_ISVTX);
    if ((info.st_mode & 07777) == wanted)
        return true;
    return ::chmod(name.constData(), wanted) == 0;
}

} // namespace Ostrel::Core::UserOnlyPlatform
