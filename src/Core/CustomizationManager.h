#pragma once

#include "Core/ostrel_core_export.h"
#include "Interfaces/ICustomizationManager.h"

#include <QString>

#include <memory>

namespace Ostrel::App {

/// The product's identity, from three layers where each later one overrides the keys it has:
///
/// 1. Built-in defaults:
///      ApplicationName "Ostrel Capture", Version "1.0.0.0", OrganizationName "Ostrel",
///      PartnerName "ostrel", ModuleName "capture", Brand "ostrel", CollectEmail false,
///      PageType "thankyou", UserAgentProduct "OstrelCapture/1.0",
///      UserAgent "Mozilla/5.0 (X11; Linux x86_64) OstrelCapture/1.0",
///      PresentableName "Ostrel Capture", InternalId "ostrel-capture".
/// 2. An optional configuration embedded in the host, usually a Qt resource
///    (":/host/CaptureDeskCustom.ini").
/// 3. "CaptureDeskCustom.ini" beside the executable, which a partner build may ship.
///
/// Both files are INI, group [Customization], keys as named above; CollectEmail takes
/// true/false/1/0. Values holding ',' or ';' (the user agent) must be quoted in the file.
/// The groups [Hosts] and [Links] (endpoint hosts and link templates, see LinksManager) are read
/// through GetCustomValue("Hosts/links") and the like, layered the same way.
/// A missing file leaves the earlier layers in place with one INFO line naming it (most
/// installations carry none), an unreadable or broken one with one WARNING line; keys a file
/// lacks come from the earlier layers without a word. Everything is read once, in the constructor.
class OSTREL_CORE_EXPORT CustomizationManager : public ICustomizationManager
{
public:
    /// `filePath`: the file of layer 3, empty for defaultFilePath().
    /// `embeddedPath`: the file of layer 2, empty for none.
    explicit CustomizationManager(const QString& filePath = QString(),
                                  const QString& embeddedPath = QString());
    ~CustomizationManager() override;

    /// QCoreApplication::applicationDirPath()/CaptureDeskCustom.ini.
    static QString defaultFilePath();

    std::string GetApplicationName() const override;
    std::string GetVersion() const override;
    std::string GetOrganizationName() const override;
    std::string GetPartnerName() const override;
    std::string GetModuleName() const override;
    std::string GetBrand() const override;
    bool IsEmailCollectionEnabled() const override;
    std::string GetPageType() const override;
    std::pair<std::string, std::string> GetUserAgent() const override;
    std::string GetPresentableName() const override;
    std::string GetInternalId() const override;
    std::string GetCustomValue(const std::string& key) const override;

private:
    class Impl;
    std::unique_ptr<Impl> d;
};

} // namespace Ostrel::App
