#pragma once

#include "App/Application/IHttpRequestUpdater.h"
#include "App/Application/ostrel_app_export.h"
#include "Events/NotNull.h"

#include <memory>

namespace Ostrel::App {

class ICustomizationManager;
class IHardwareInfo;
class IUserSettingsManager;

/// The common headers, computed afresh on every call (a new "WEBUID" shows at once):
///   "User-Agent"     the customization's user agent
///   "Ostrel-Huid"    SHA-1 (hex) of the hardware id; empty when there is no id
///   "Ostrel-Os"      "win"
///   "Ostrel-Webuid"  the user settings' "WEBUID", "UNDEFINED" when unset
class OSTREL_APP_EXPORT HttpRequestUpdater : public IHttpRequestUpdater
{
public:
    HttpRequestUpdater(const Core::NotNull<std::shared_ptr<ICustomizationManager>>& customizationManager,
                       const Core::NotNull<std::shared_ptr<IUserSettingsManager>>& userSettingsManager,
                       const Core::NotNull<std::shared_ptr<IHardwareInfo>>& hardwareInfo);
    ~HttpRequestUpdater() override;

    void updateQtRequest(QNetworkRequest& request) const override;
    std::map<std::string, std::string> getRawHeaders() const override;
    std::map<std::string, std::string, Networking::CaseInsensitiveCompare> getHeaders() const override;

private:
    class Impl;
    std::unique_ptr<Impl> d;
};

} // namespace Ostrel::App
