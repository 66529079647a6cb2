#pragma once

#include "App/Application/Extensions/Extension.h"
#include "App/Application/ostrel_app_export.h"

#include <memory>

namespace Ostrel::App {

class IProductSettingsManager;

/// Records where the program lies: "Path" in the product settings, the folder of the executable
/// in native form with one trailing separator.
class OSTREL_APP_EXPORT ApplicationRegistryUpdater : public Extension
{
public:
    explicit ApplicationRegistryUpdater(
        const std::shared_ptr<IProductSettingsManager>& productSettingsManager);
    ~ApplicationRegistryUpdater() override;

    void onStart() override;

private:
    class Impl;
    std::unique_ptr<Impl> d;
};

} // namespace Ostrel::App
