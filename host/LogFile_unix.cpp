#include "LogFile.h"

#include <fcntl.h>
#include <unistd.h>

bool isLogFileTakenByAnotherProcess(const QString& path)
{
    const int fd = ::open(path.toLocal8Bit().constData(), O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0664);
    if (fd < 0)
        return false; // glog will say what is wrong with the file
    struct flock lock = {};
    lock.l_type = F_WRLCK;
    lock.l_whence = SEEK_SET;
    const bool taken = ::fcntl(fd, F_SETLK, &lock) != 0;
    ::close(fd); // releases our own probe lock
    return taken;
}
