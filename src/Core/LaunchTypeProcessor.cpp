#include "Core/LaunchTypeProcessor.h"
#include "Foundation/Utf8.h"

#include <glog/logging.h>

#include <optional>

namespace Ostrel::App {

namespace {

const char* const InstalledVersion = "Version";
const char* const LastLaunchedVersion = "LastLaunchedVersion";

std::optional<int> launchTypeFromArguments(const QStringList& arguments)
{
    const QString prefix = QStringLiteral("--launch-type=");
    std::optional<int> result;
    bool background = false;
    // The first argument is the program itself.
    for (int i = 1; i < arguments.size(); ++i) {
        const QString& argument = arguments.at(i);
        if (argument == QLatin1String("--background")) {
            background = true;
        } else if (argument.startsWith(prefix)) {
            bool ok = false;
            const int value = argument.mid(prefix.size()).toInt(&ok);
            if (ok && value >= ILaunchTypeProcessor::Regular && value <= ILaunchTypeProcessor::Background) {
                result = value;
            } else {
                LOG(WARNING) << "Ignoring unknown launch type argument \"" << Util::QStringToUtf8(argument)
                             << '"';
            }
        }
    }
    if (!result && background)
        result = ILaunchTypeProcessor::Background;
    return result;
}

} // namespace

class LaunchTypeProcessor::Impl
{
public:
    int launchType = Regular;
};

LaunchTypeProcessor::LaunchTypeProcessor(
    Core::NotNull<std::shared_ptr<IProductSettingsManager>> productSettings,
    Core::NotNull<std::shared_ptr<IInstallerSettingsManager>> installerSettings, const QStringList& arguments)
    : d(std::make_unique<Impl>())
{
    const std::string installed = installerSettings->GetString(InstalledVersion, std::string());
    const std::string lastLaunched = productSettings->GetString(LastLaunchedVersion, std::string());

    if (const std::optional<int> explicitType = launchTypeFromArguments(arguments)) {
        d->launchType = *explicitType;
    } else if (!installed.empty() && installed != lastLaunched) {
        d->launchType = lastLaunched.empty() ? FirstAfterInstall : FirstAfterUpdate;
    }

    if (d->launchType != Background && !installed.empty() && installed != lastLaunched)
        productSettings->SetString(LastLaunchedVersion, installed);

    LOG(INFO) << "Launch type " << d->launchType << " (installed version \"" << installed
              << "\", last launched \"" << lastLaunched << "\")";
}

LaunchTypeProcessor::~LaunchTypeProcessor() = default;

int LaunchTypeProcessor::GetLaunchType() const
{
    return d->launchType;
}

} // namespace Ostrel::App
