#pragma once

// Components in memory for the links tests: only what the links read matters.

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

class MemorySettings : public virtual App::ISettingsManager
{
public:
    std::map<std::string, std::string> values;

    void SetString(const std::string& key, const std::string& value) override { values[key] = value; }
    bool GetBool(const std::string& key, bool def) const override { return Has(key) ? values.at(key) == "true" : def; }
    std::string GetString(const std::string& key, const std::string& def) const override
    {
        return Has(key) ? values.at(key) : def;
    }
    unsigned GetUInt(const std::string& key, unsigned def) const override
    {
        return Has(key) ? static_cast<unsigned>(std::stoul(values.at(key))) : def;
    }
    bool Has(const std::string& key) const override { return values.count(key) != 0; }
    void Remove(const std::string& key) override { values.erase(key); }
    void SetBool(const std::string& key, bool value) override { values[key] = value ? "true" : "false"; }
    void SetUInt(const std::string& key, unsigned value) override { values[key] = std::to_string(value); }
    int GetInt(const std::string& key, int def) const override { return Has(key) ? std::stoi(values.at(key)) : def; }
    void SetInt(const std::string& key, int value) override { values[key] = std::to_string(value); }
    void RemoveGroup(const std::string&) override {}
    std::vector<std::string> ChildKeys(const std::string&) const override { return {}; }
    std::vector<std::string> ChildGroups(const std::string&) const override { return {}; }
};

class MemoryProductSettings : public MemorySettings, public App::IProductSettingsManager
{
};
class MemoryUserSettings : public MemorySettings, public App::IUserSettingsManager
{
};
class MemoryMailSettings : public MemorySettings, public App::IMailSettingsManager
{
};
class MemoryInstallerSettings : public MemorySettings, public App::IInstallerSettingsManager
{
};

} // namespace Ostrel::Test
