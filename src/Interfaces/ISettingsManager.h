#pragma once

#include <string>
#include <vector>

namespace Ostrel::App {

/// A persistent string-keyed store. Keys may hold "/" to name groups ("confirm/Question_1").
/// Every read takes the value returned for an absent (or unreadable) key.
class ISettingsManager
{
public:
    virtual ~ISettingsManager() = default;

    virtual void SetString(const std::string& key, const std::string& value) = 0;
    virtual bool GetBool(const std::string& key, bool defaultValue) const = 0;
    virtual std::string GetString(const std::string& key, const std::string& defaultValue) const = 0;
    virtual unsigned int GetUInt(const std::string& key, unsigned int defaultValue) const = 0;
    virtual bool Has(const std::string& key) const = 0;
    virtual void Remove(const std::string& key) = 0;

    virtual void SetBool(const std::string& key, bool value) = 0;
    virtual void SetUInt(const std::string& key, unsigned int value) = 0;
    virtual int GetInt(const std::string& key, int defaultValue) const = 0;
    virtual void SetInt(const std::string& key, int value) = 0;
    /// Removes a group with every key below it.
    virtual void RemoveGroup(const std::string& group) = 0;
    /// The keys directly below `group` (the top level for an empty group), without the group prefix.
    virtual std::vector<std::string> ChildKeys(const std::string& group) const = 0;
    /// The groups directly below `group`.
    virtual std::vector<std::string> ChildGroups(const std::string& group) const = 0;
};

} // namespace Ostrel::App
