#pragma once

#include <string>
#include <utility>

namespace Ostrel::App {

/// The product's identity and build customization. Every text is UTF-8.
class ICustomizationManager
{
public:
    virtual ~ICustomizationManager() = default;

    virtual std::string GetApplicationName() const = 0;
    /// Dotted version of the build, "major.minor.patch.build".
    virtual std::string GetVersion() const = 0;
    virtual std::string GetOrganizationName() const = 0;
    virtual std::string GetPartnerName() const = 0;
    virtual std::string GetModuleName() const = 0;
    virtual std::string GetBrand() const = 0;
    virtual bool IsEmailCollectionEnabled() const = 0;
    /// The kind of page opened after an installation ("thankyou"), or empty for none.
    virtual std::string GetPageType() const = 0;
    /// The pair (product token, full user agent) for outgoing requests; the second is the header value.
    virtual std::pair<std::string, std::string> GetUserAgent() const = 0;
    /// The product name as people read it ("Ostrel Capture").
    virtual std::string GetPresentableName() const = 0;
    virtual std::string GetInternalId() const = 0;
    /// A value of the customization that has no getter of its own, by "Group/Key" (the links
    /// read "Hosts/<endpoint>" and "Links/<key name>"); empty when the customization has none.
    virtual std::string GetCustomValue(const std::string& key) const
    {
        (void)key;
        return {};
    }
};

} // namespace Ostrel::App
