#include "App/Application/HttpRequestUpdater.h"

#include "App/Application/ProductConstants.h"
#include "Foundation/SHA1.h"
#include "Foundation/Utf8.h"
#include "Interfaces/ICustomizationManager.h"
#include "Interfaces/IHardwareInfo.h"
#include "Interfaces/IUserSettingsManager.h"

#include <QNetworkRequest>

namespace Ostrel::App {

namespace {
constexpr char UserAgentHeader[] = "User-Agent";
}

class HttpRequestUpdater::Impl
{
public:
    std::shared_ptr<ICustomizationManager> customizationManager;
    std::shared_ptr<IUserSettingsManager> userSettingsManager;
    std::shared_ptr<IHardwareInfo> hardwareInfo;
};

HttpRequestUpdater::HttpRequestUpdater(
    const Core::NotNull<std::shared_ptr<ICustomizationManager>>& customizationManager,
    const Core::NotNull<std::shared_ptr<IUserSettingsManager>>& userSettingsManager,
    const Core::NotNull<std::shared_ptr<IHardwareInfo>>& hardwareInfo)
    : d(std::make_unique<Impl>())
{
    d->customizationManager = customizationManager;
    d->userSettingsManager = userSettingsManager;
    d->hardwareInfo = hardwareInfo;
}

HttpRequestUpdater::~HttpRequestUpdater() = default;

std::map<std::string, std::string> HttpRequestUpdater::getRawHeaders() const
{
    std::string huid = d->hardwareInfo->GetHardwareId();
    if (!huid.empty())
        huid = Util::SHA1::digest(huid);
    return {
        {UserAgentHeader, d->customizationManager->GetUserAgent().second},
        {"Ostrel-Huid", huid},
        {"Ostrel-Os", ProductConstants::PlatformToken},
        {"Ostrel-Webuid", d->userSettingsManager->GetString("WEBUID", ProductConstants::Undefined)},
    };
}

std::map<std::string, std::string, Networking::CaseInsensitiveCompare> HttpRequestUpdater::getHeaders() const
{
    const auto raw = getRawHeaders();
    return {raw.begin(), raw.end()};
}

void HttpRequestUpdater::updateQtRequest(QNetworkRequest& request) const
{
    const auto headers = getRawHeaders();
    request.setHeader(QNetworkRequest::UserAgentHeader,
                      QVariant(Util::Utf8ToQString(headers.at(UserAgentHeader))));
    for (const auto& [name, value] : headers) {
        if (name != UserAgentHeader)
            request.setRawHeader(QByteArray::fromStdString(name), QByteArray::fromStdString(value));
    }
}

} // namespace Ostrel::App
