#pragma once

#include "App/Application/Extensions/Extension.h"
#include "App/Application/ostrel_app_export.h"

#include <memory>

namespace Ostrel::App {

class IProductSettingsManager;

/// Records the word size of the running build for the installer: "ArchitectBits" = "x64".
class OSTREL_APP_EXPORT InstallerUpdater : public Extension
{
public:
    explicit InstallerUpdater(const std::shared_ptr<IProductSettingsManager>& productSettingsManager);
    ~InstallerUpdater() override;

    void onStart() override;

private:
    class Impl;
    std::unique_ptr<Impl> d;
};

} // namespace Ostrel::App
