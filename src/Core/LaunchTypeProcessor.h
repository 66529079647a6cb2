#pragma once

#include "Core/ostrel_core_export.h"
#include "Events/NotNull.h"
#include "Interfaces/IInstallerSettingsManager.h"
#include "Interfaces/ILaunchTypeProcessor.h"
#include "Interfaces/IProductSettingsManager.h"

#include <QStringList>

#include <memory>

namespace Ostrel::App {

/// Works out how this launch came about, once, in the constructor:
///
/// 1. "--launch-type=N" among the arguments, N one of the LaunchType values, wins: the installer
///    and the restarter say what they did. Any other N is logged and ignored.
/// 2. "--background" gives Background (started at log-in or by another program).
/// 3. Otherwise the installer's "Version" is compared with the product's "LastLaunchedVersion":
///    an installed version this product never launched gives FirstAfterInstall when nothing was
///    launched before, FirstAfterUpdate when another version was; anything else gives Regular.
///
/// After deciding, the installer's version is written to "LastLaunchedVersion", except for a
/// Background launch: nobody saw it, so the first launch a person sees still counts as the first
/// after the installation or update.
class OSTREL_CORE_EXPORT LaunchTypeProcessor : public ILaunchTypeProcessor
{
public:
    /// `arguments` as QCoreApplication::arguments() gives them (the program first, which is ignored).
    LaunchTypeProcessor(Core::NotNull<std::shared_ptr<IProductSettingsManager>> productSettings,
                        Core::NotNull<std::shared_ptr<IInstallerSettingsManager>> installerSettings,
                        const QStringList& arguments);
    ~LaunchTypeProcessor() override;

    int GetLaunchType() const override;

private:
    class Impl;
    std::unique_ptr<Impl> d;
};

} // namespace Ostrel::App
