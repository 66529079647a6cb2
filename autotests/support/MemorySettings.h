#pragma once

#include "Interfaces/IInstallerSettingsManager.h"
#include "Interfaces/IMailSettingsManager.h"
#include "Interfaces/IProductSettingsManager.h"
#include "Interfaces/IUserSettingsManager.h"

#include <map>
#include <string>
#include <vector>

namespace Ostrel::Test {

/// A settings store in memory, for tests that care what was read and written, not where it lives.
class MemorySettings : public virtual App::ISettingsManager
{
public:
    std::map<std::string, std::string> values;

    void SetString(const std::string& key, const std::string& value) override { values[key] = value; }
    bool GetBool(const std::string& key, bool def) const override
    {
        return Has(key) ? values.at(key) == "true" : def;
    }
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
    int GetInt(const std::string& key, int def) const override
    {
        return Has(key) ? std::stoi(values.at(key)) : def;
    }
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
