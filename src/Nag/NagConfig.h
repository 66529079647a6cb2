#pragma once

#include "Nag/Implementation.h"
#include "Nag/ostrel_nag_export.h"

#include <QByteArray>
#include <QStringList>

#include <map>
#include <optional>

namespace Ostrel::App::NagScreen {

/// One row of the nag map.
struct NagRecord
{
    QString action;
    Implementation implementation = Implementation::None;
    /// Modules of the product the nag is for; empty means all.
    QStringList modules;
    /// Where the nag comes from: a "qrc:"/"file:" main.qml, or the address of a web nag.
    QString source;
    QString id;
    QString name;
    /// Switched off by the configuration: present, never shown.
    bool disabled = false;
};

/// The nag map: for each mode and action, the nag to show. Its JSON form:
///
///     { "nags": [ { "mode": "free", "action": "app_start", "implementation": "local",
///                   "source": "qrc:/NagScreen/app_start/main.qml", "id": "...", "name": "...",
///                   "modules": ["capture"], "disabled": false }, ... ] }
///
/// "mode" may be "any_mode". "implementation" is "local" or "web"; without it, an "http(s):" source
/// is web and anything else local. A row without mode, action or source, or with an implementation
/// this build doesn't know, is skipped with a warning; a later row for the same mode and action
/// replaces an earlier one.
class OSTREL_NAG_EXPORT NagConfig
{
public:
    NagConfig();
    /// Null (with one error line) when the text isn't a JSON object with a "nags" array.
    static std::optional<NagConfig> fromJson(const QByteArray& json);
    /// Reads a file or a resource (":/..."); null with one error line when it can't be read.
    static std::optional<NagConfig> fromFile(const QString& path);

    /// The rows of `mode` itself, by action; "any_mode" rows are not merged in.
    std::map<QString, NagRecord> ActionsForMode(const QString& mode) const;
    /// The row for `action` in `mode`, else the one in "any_mode".
    std::optional<NagRecord> Find(const QString& mode, const QString& action) const;
    /// Actions that have a row in `mode` or in "any_mode".
    QStringList ActionsIn(const QString& mode) const;
    void Add(const QString& mode, const NagRecord& record);
    std::size_t size() const;

private:
    std::map<QString, std::map<QString, NagRecord>> m_rows;
};

} // namespace Ostrel::App::NagScreen
