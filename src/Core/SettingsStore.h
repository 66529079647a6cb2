#pragma once

#include "Core/ostrel_core_export.h"
#include "Interfaces/ISettingsManager.h"

#include <QString>

#include <memory>

namespace Ostrel::App {

/// ISettingsManager over one INI file; the settings components of every scope share it.
///
/// - Typed reads give the default for an absent key and for a value that does not convert
///   ("abc" read as a number), the latter with a WARNING line naming key and file.
///   Booleans read "true"/"false"/"1"/"0" in any case.
/// - The changes of one turn of the event loop are saved together, in one rewrite of the file, at
///   the next turn; the rest at quit (QCoreApplication::aboutToQuit) and when the store goes.
///   Without an application object every change is saved at once. Reads see a change at once.
/// - A file that exists but cannot be read or parsed, or holds a value this build cannot decode
///   ("@Variant(...)" of an unknown type), is never overwritten: the store logs one ERROR line
///   naming the file (and the line), serves what it could read and ignores writes (each with a
///   WARNING) for the rest of the run.
/// - A lock file beside it that names no owner is removed at the first write, with a WARNING,
///   rather than waited out.
/// - An empty key or group is refused with a WARNING; an empty group for RemoveGroup would
///   otherwise mean "everything".
/// Safe to use from several threads.
class OSTREL_CORE_EXPORT SettingsStore : public virtual ISettingsManager
{
public:
    /// Opens (not creates) the INI file at `filePath`; the file and its folder appear on the first write.
    explicit SettingsStore(const QString& filePath);
    ~SettingsStore() override;
    SettingsStore(const SettingsStore&) = delete;
    SettingsStore& operator=(const SettingsStore&) = delete;

    QString filePath() const;
    /// True when the file was unreadable or broken at opening, so writes are ignored.
    bool isReadOnly() const;

    void SetString(const std::string& key, const std::string& value) override;
    bool GetBool(const std::string& key, bool defaultValue) const override;
    std::string GetString(const std::string& key, const std::string& defaultValue) const override;
    unsigned int GetUInt(const std::string& key, unsigned int defaultValue) const override;
    bool Has(const std::string& key) const override;
    /// Removes only the key itself; a group of the same name keeps its keys.
    void Remove(const std::string& key) override;

    void SetBool(const std::string& key, bool value) override;
    void SetUInt(const std::string& key, unsigned int value) override;
    int GetInt(const std::string& key, int defaultValue) const override;
    void SetInt(const std::string& key, int value) override;
    void RemoveGroup(const std::string& group) override;
    std::vector<std::string> ChildKeys(const std::string& group) const override;
    std::vector<std::string> ChildGroups(const std::string& group) const override;

private:
    class Impl;
    std::unique_ptr<Impl> d;
};

} // namespace Ostrel::App
