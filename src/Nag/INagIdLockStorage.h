#pragma once

#include <string>

namespace Ostrel::App::NagScreen {

/// For each action and mode, the one nag id that the nag server is to repeat until it has been
/// shown. Called from the nag library's threads: every operation is atomic against the others.
///
/// The nag manager locks the id a web nag reports once it has loaded, and releases it after the
/// nag has been on screen: it asks cleanupNagId with an empty id, which releases whatever is
/// locked, and only while the lock still names that nag.
class INagIdLockStorage
{
public:
    virtual ~INagIdLockStorage() = default;
    /// Locks `nagId` and returns the id locked before (empty for none).
    virtual std::string lockNagId(const std::string& action, const std::string& mode,
                                  const std::string& nagId) = 0;
    virtual std::string getLockedNagId(const std::string& action, const std::string& mode) const = 0;
    /// Releases a lock that names another id than `nagId` and returns that id; a lock on `nagId`
    /// itself (or none) stays, and the result is empty.
    virtual std::string cleanupNagId(const std::string& action, const std::string& mode,
                                     const std::string& nagId) = 0;
};

} // namespace Ostrel::App::NagScreen
