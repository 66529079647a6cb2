#include "Ipc/InstanceLock_p.h"

#include "Foundation/Utf8.h"

#include <glog/logging.h>

#include <QLockFile>

namespace Ostrel::App {

class InstanceLock::Impl
{
public:
    explicit Impl(const QString& path) : path(path), file(path) {}

    // QLockFile, with no stale time, lets go only of a lock whose owner it can name and finds
    // gone. A primary killed between making the file and writing its id leaves one that names
    // nobody, which would make every later instance a secondary for good.
    bool takeOverOwnerless()
    {
        qint64 pid = 0;
        QString host;
        QString application;
        if (file.getLockInfo(&pid, &host, &application))
            return false;
        // A live holder keeps the file locked while it writes its id: then the removal fails.
        if (!file.removeStaleLockFile())
            return false;
        LOG(WARNING) << "The instance lock " << Util::QStringToUtf8(path)
                     << " named no owner; this instance takes it over";
        return file.tryLock(0);
    }

    QString path;
    QLockFile file;
};

InstanceLock::InstanceLock(const QString& folder, const QString& key)
    : d(std::make_unique<Impl>(folder + QLatin1Char('/') + key + QStringLiteral(".lock")))
{
    // A lock is stale only when its holder is gone, never because it is old: a primary may run for weeks.
    d->file.setStaleLockTime(0);
}

InstanceLock::~InstanceLock() = default;

bool InstanceLock::tryLock(QString* why)
{
    if (d->file.tryLock(0))
        return true;
    if (d->file.error() == QLockFile::LockFailedError && d->takeOverOwnerless())
        return true;
    if (d->file.error() != QLockFile::LockFailedError)
        *why = QStringLiteral("the lock file %1 can't be made").arg(d->path);
    return false;
}

} // namespace Ostrel::App
