#include "Ipc/InstanceLock_p.h"

#include <QLockFile>

namespace Ostrel::App {

class InstanceLock::Impl
{
public:
    explicit Impl(const QString& path) : path(path), file(path) {}
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
    if (d->file.error() != QLockFile::LockFailedError)
        *why = QStringLiteral("the lock file %1 can't be made").arg(d->path);
    return false;
}

} // namespace Ostrel::App
