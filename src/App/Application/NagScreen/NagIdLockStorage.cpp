#include "App/Application/NagScreen/NagIdLockStorage.h"

#include "Interfaces/IProductSettingsManager.h"

#include <glog/logging.h>

#include <mutex>

namespace Ostrel::App::NagScreen {

namespace {

std::string lockKey(const std::string& action, const std::string& mode)
{
    return "NagIdLocks/" + action + "_" + mode;
}

} // namespace

class NagIdLockStorage::Impl
{
public:
    mutable std::mutex mutex;
    std::shared_ptr<IProductSettingsManager> settings;

    // Without settings nothing can be remembered; a lock is then simply never there.
    std::string read(const std::string& key) const
    {
        return settings ? settings->GetString(key, std::string()) : std::string();
    }
};

NagIdLockStorage::NagIdLockStorage(std::shared_ptr<IProductSettingsManager> settings)
    : d(std::make_unique<Impl>())
{
    d->settings = std::move(settings);
    if (!d->settings)
        LOG(ERROR) << "NagIdLockStorage has no product settings: nag id locks are not kept";
}

NagIdLockStorage::~NagIdLockStorage() = default;

std::string NagIdLockStorage::lockNagId(const std::string& action, const std::string& mode,
                                        const std::string& nagId)
{
    std::lock_guard<std::mutex> lock(d->mutex);
    const std::string key = lockKey(action, mode);
    std::string previous = d->read(key);
    if (d->settings)
        d->settings->SetString(key, nagId);
    return previous;
}

std::string NagIdLockStorage::getLockedNagId(const std::string& action, const std::string& mode) const
{
    std::lock_guard<std::mutex> lock(d->mutex);
    return d->read(lockKey(action, mode));
}

std::string NagIdLockStorage::cleanupNagId(const std::string& action, const std::string& mode,
                                           const std::string& nagId)
{
    std::lock_guard<std::mutex> lock(d->mutex);
    const std::string key = lockKey(action, mode);
    std::string stored = d->read(key);
    if (stored.empty() || stored == nagId)
        return {};
    d->settings->Remove(key);
    return stored;
}

} // namespace Ostrel::App::NagScreen
