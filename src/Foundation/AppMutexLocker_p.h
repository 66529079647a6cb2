#pragma once

#include <cstdint>
#include <string>

// The OS primitive behind AppMutexLocker; one definition per platform.
namespace Ostrel::Util::AppMutexPlatform {

/// A file descriptor or an OS handle, whichever the platform uses.
using Handle = std::intptr_t;

/// Takes the lock `name` without waiting. True when it is now held, `handle` then being what
/// release() needs; false when another holder has it or the OS refused (logged).
bool acquire(const std::string& name, Handle& handle);
void release(Handle handle);

} // namespace Ostrel::Util::AppMutexPlatform
