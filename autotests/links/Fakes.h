#pragma once

// Components in memory for the links tests: only what the links read matters.

#include "../support/MemorySettings.h"
#include "Interfaces/ICustomizationManager.h"
#include "Interfaces/IHardwareInfo.h"
#include "Interfaces/IInstallerSettingsManager.h"
#include "Interfaces/ILaunchTypeProcessor.h"
#include "Interfaces/ILookAndFeelManager.h"
#include "Interfaces/IMailSettingsManager.h"
#include "Interfaces/IProductSettingsManager.h"
#include "Interfaces/IUserSettingsManager.h"

#include <map>
#include <string>

namespace Ostrel::Test {

class FakeCustomization : public App::ICustomizationManager
{
public:
    std::map<std::string, std::string> custom;
    std::string GetApplicationName() const override { return "Links Probe"; }
    std::string GetVersion() const override { return "3.2.1.0"; }
    std::string GetOrganizationName() const override { return "Probe Org"; }
    std::string GetPartnerName() const override { return "builtin partner"; }
    std::string GetModuleName() const override { return "capture"; }
    std::string GetBrand() const override { return "probe"; }
    bool IsEmailCollectionEnabled() const override { return false; }
    std::string GetPageType() const override { return {}; }
    std::pair<std::string, std::string> GetUserAgent() const override { return {"Probe/1", "Mozilla/5.0 Probe/1"}; }
    std::string GetPresentableName() const override { return "Links Probe"; }
    std::string GetInternalId() const override { return "links-probe"; }
    std::string GetCustomValue(const std::string& key) const override
    {
        const auto found = custom.find(key);
        return found == custom.end() ? std::string() : found->second;
    }
};

class FakeHardware : public App::IHardwareInfo
{
public:
    std::string id = "machine-42";
    std::string GetHardwareId() const override { return id; }
};

class FakeLaunchType : public App::ILaunchTypeProcessor
{
public:
    int GetLaunchType() const override { return 2; }
};

// Only the locale matters to the links.
class FakeLookAndFeel : public App::ILookAndFeelManager
{
public:
    std::string locale = "pt_BR";
    std::list<std::string> none;
    void Initialize(const std::string&, const std::string&) override {}
    const std::string& GetCurrentLocale() const override { return locale; }
    const std::list<std::string>& GetLocales() const override { return none; }
    const std::list<std::string>& GetThemes() const override { return none; }
    void SetLocale(const std::string& value) override { locale = value; }
    void SetTheme(const std::string&) override {}
    const std::string& GetCurrentTheme() const override { return locale; }
    std::string GetLocalizedThemeName(const std::string& theme) const override { return theme; }
    void ApplyTheme(const ThemeDescription&) override {}
    std::string GetUnitedStylesheet() override { return {}; }
    std::string GetDefaultLocale() const override { return "en"; }
    void RegisterObserver(App::ILookAndFeelObserver*) override {}
    void UnregisterObserver(App::ILookAndFeelObserver*) override {}
};


} // namespace Ostrel::Test
