#pragma once

#include <QString>

#include <memory>

namespace Ostrel::App {

/// Decides which process of the product and user is the primary instance, the one that listens
/// for requests: whoever holds the lock. The operating system lets go of it when the holder ends
/// in any way, so a crashed primary never blocks the next one; nor does a lock file that names no
/// owner (one killed while it made the file): it is taken over, with a WARNING.
class InstanceLock
{
public:
    /// `folder`: the user's private folder (unused where the lock is a kernel object); `key`: the
    /// product and user.
    InstanceLock(const QString& folder, const QString& key);
    ~InstanceLock();
    InstanceLock(const InstanceLock&) = delete;
    InstanceLock& operator=(const InstanceLock&) = delete;

    /// Takes the lock without waiting. False when another process holds it, or with `why` set
    /// when the lock can't be made.
    bool tryLock(QString* why);

private:
    class Impl;
    std::unique_ptr<Impl> d;
};

} // namespace Ostrel::App
