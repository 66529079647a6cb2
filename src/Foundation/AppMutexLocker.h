#pragma once

#include "Foundation/ostrel_foundation_export.h"

#include <memory>
#include <string>

namespace Ostrel::Util {

/// A named lock shared by all processes of the current user, typically to keep a single
/// instance of the application running. At most one AppMutexLocker holds a given name at a
/// time, whether the contenders live in different processes or in the same one.
///
/// The lock dies with its holder: it is released by the destructor, and the OS releases it
/// when the holding process ends in any way, including being killed.
class OSTREL_FOUNDATION_EXPORT AppMutexLocker
{
public:
    /// Prepares the lock called `name` (UTF-8, any characters) without taking it.
    explicit AppMutexLocker(const std::string& name);
    /// Releases the lock if this object holds it.
    ~AppMutexLocker();
    AppMutexLocker(const AppMutexLocker&) = delete;
    AppMutexLocker& operator=(const AppMutexLocker&) = delete;

    /// Takes the lock without waiting. True if this object holds it now, whether it just took
    /// it or already held it; false if someone else holds it or the lock cannot be set up
    /// (which is logged as a warning).
    bool TryLockAppMutex();
    bool IsLocked() const;

private:
    class Impl;
    std::unique_ptr<Impl> d;
};

} // namespace Ostrel::Util
