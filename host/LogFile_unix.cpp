#include "LogFile.h"

#include <fcntl.h>
#include <unistd.h>

bool claimLogFile(const QString& path)
{
    const int fd = ::open(path.toLocal8Bit().constData(), O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0600);
    if (fd < 0)
        return true; // glog will say what is wrong with the file
    struct flock lock = {};
    lock.l_type = F_WRLCK;
    lock.l_whence = SEEK_SET;
    if (::fcntl(fd, F_SETLK, &lock) != 0) {
        ::close(fd);
        return false;
    }
    // Left open: closing any descriptor of the file would let go of this process's lock on it.
    // glog's own lock on the file is then a second one of the same process, which never conflicts.
    return true;
}
