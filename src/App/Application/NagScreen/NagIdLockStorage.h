#pragma once

#include "App/Application/NagScreen/INagIdLockStorage.h"
#include "App/Application/ostrel_app_export.h"

#include <memory>

namespace Ostrel::App {
class IProductSettingsManager;
}

namespace Ostrel::App::NagScreen {

/// The locked nag ids in the product settings, under "NagIdLocks/<action>_<mode>".
class OSTREL_APP_EXPORT NagIdLockStorage : public INagIdLockStorage
{
public:
    explicit NagIdLockStorage(std::shared_ptr<IProductSettingsManager> settings);
    ~NagIdLockStorage() override;
    NagIdLockStorage(const NagIdLockStorage&) = delete;
    NagIdLockStorage& operator=(const NagIdLockStorage&) = delete;

    std::string lockNagId(const std::string& action, const std::string& mode,
                          const std::string& nagId) override;
    std::string getLockedNagId(const std::string& action, const std::string& mode) const override;
    std::string cleanupNagId(const std::string& action, const std::string& mode,
                             const std::string& nagId) override;

private:
    class Impl;
    std::unique_ptr<Impl> d;
};

} // namespace Ostrel::App::NagScreen
