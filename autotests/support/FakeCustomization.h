#pragma once

#include "Interfaces/ICustomizationManager.h"

#include <map>
#include <string>

namespace Ostrel::Test {

/// A product's customization with fixed names; custom values are set by each test.
class FakeCustomization : public App::ICustomizationManager
{
public:
    std::map<std::string, std::string> custom;
    std::string version = "3.2.1.0";
    std::string GetApplicationName() const override { return "Links Probe"; }
    std::string GetVersion() const override { return version; }
    std::string GetOrganizationName() const override { return "Probe Org"; }
    std::string GetPartnerName() const override { return "builtin partner"; }
    std::string GetModuleName() const override { return "capture"; }
    std::string GetBrand() const override { return "probe"; }
    bool IsEmailCollectionEnabled() const override { return false; }
    std::string GetPageType() const override { return {}; }
    std::pair<std::string, std::string> GetUserAgent() const override
    {
        return {"Probe/1", "Mozilla/5.0 Probe/1"};
    }
    std::string GetPresentableName() const override { return "Links Probe"; }
    std::string GetInternalId() const override { return "links-probe"; }
    std::string GetCustomValue(const std::string& key) const override
    {
        const auto found = custom.find(key);
        return found == custom.end() ? std::string() : found->second;
    }
};

} // namespace Ostrel::Test
