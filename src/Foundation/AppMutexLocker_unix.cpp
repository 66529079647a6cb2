#include "Foundation/AppMutexLocker_p.h"

#include "Foundation/SHA1.h"

#include <glog/logging.h>

#include <QDir>
#include <QFile>
#include <QStandardPaths>

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <system_error>
#include <unistd.h>

namespace Ostrel::Util::AppMutexPlatform {

namespace {

std::string errnoText(int error)
{
    return std::error_code(error, std::generic_category()).message();
}

bool safeInFileName(unsigned char c)
{
    // Bytes of multi-byte UTF-8 characters are kept: Unix file names take them as they are.
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '-' ||
           c == '_' || c == '.' || c == '{' || c == '}' || c >= 0x80;
}

// Unsafe bytes are percent-encoded rather than replaced by one stand-in, so that two names
// never share a lock file by accident.
std::string fileNamePart(const std::string& name)
{
    static const char hex[] = "0123456789ABCDEF";
    std::string part;
    for (unsigned char c : name) {
        if (safeInFileName(c)) {
            part += static_cast<char>(c);
        } else {
            part += '%';
            part += hex[c >> 4];
            part += hex[c & 0xF];
        }
    }
    // File names are limited to 255 bytes.
    if (part.size() > 200)
        part = "sha1-" + SHA1::digest(name);
    return part;
}

std::string lockFilePath(const std::string& name)
{
    // With XDG_RUNTIME_DIR unset Qt warns and invents a folder; the temp folder is the same
    // fallback without the noise. The temp folder may be shared by all users, so the file
    // name then carries the user id to keep one user's lock from blocking another's.
    QString folder;
    if (!qEnvironmentVariableIsEmpty("XDG_RUNTIME_DIR"))
        folder = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
    std::string user;
    if (folder.isEmpty()) {
        folder = QDir::tempPath();
        user = "-" + std::to_string(::getuid());
    }
    return QFile::encodeName(folder).toStdString() + "/ostrel-" + fileNamePart(name) + user + ".lock";
}

} // namespace

bool acquire(const std::string& name, Handle& handle)
{
    const std::string path = lockFilePath(name);
    // O_CLOEXEC: a child process must not inherit the descriptor, or the lock would outlive
    // this process in it. O_NOFOLLOW: in a shared temp folder the name could be a planted link.
    int fd;
    do {
        fd = ::open(path.c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, 0600);
    } while (fd < 0 && errno == EINTR);
    if (fd < 0) {
        LOG(WARNING) << "Cannot open the lock file " << path << ": " << errnoText(errno);
        return false;
    }

    // flock locks belong to the open file description, so a second open in this same process
    // contends like any other process, and the kernel drops the lock when the holder dies.
    int result;
    do {
        result = ::flock(fd, LOCK_EX | LOCK_NB);
    } while (result != 0 && errno == EINTR);
    if (result != 0) {
        const int error = errno;
        ::close(fd);
        if (error != EWOULDBLOCK)
            LOG(WARNING) << "Cannot lock the lock file " << path << ": " << errnoText(error);
        return false;
    }
    handle = fd;
    return true;
}

// The file stays: deleting it would let another process lock a fresh file of the same name
// while a third still holds the old, unlinked one.
void release(Handle handle)
{
    ::close(static_cast<int>(handle));
}

} // namespace Ostrel::Util::AppMutexPlatform
