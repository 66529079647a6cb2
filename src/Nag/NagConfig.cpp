#include "Nag/NagConfig.h"

#include "Foundation/Utf8.h"
#include "Nag/NagContext.h"

#include <glog/logging.h>

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace Ostrel::App::NagScreen {

namespace {

bool isWebAddress(const QString& source)
{
    return source.startsWith(QLatin1String("http://")) || source.startsWith(QLatin1String("https://"));
}

} // namespace

NagConfig::NagConfig() = default;

std::optional<NagConfig> NagConfig::fromJson(const QByteArray& json)
{
    QJsonParseError error{};
    const QJsonDocument document = QJsonDocument::fromJson(json, &error);
    const QJsonValue nags = document.object().value(QLatin1String("nags"));
    if (!document.isObject() || !nags.isArray()) {
        LOG(ERROR) << "The nag map is not a JSON object with a \"nags\" array ("
                   << Util::QStringToUtf8(error.errorString()) << ")";
        return std::nullopt;
    }
    NagConfig config;
    int index = -1;
    const QJsonArray rows = nags.toArray();
    for (const QJsonValue& value : rows) {
        ++index;
        const QJsonObject row = value.toObject();
        NagRecord record;
        const QString mode = row.value(QLatin1String("mode")).toString();
        record.action = row.value(QLatin1String("action")).toString();
        record.source = row.value(QLatin1String("source")).toString();
        if (mode.isEmpty() || record.action.isEmpty() || record.source.isEmpty()) {
            LOG(WARNING) << "Nag map row " << index << " lacks a mode, an action or a source; skipped";
            continue;
        }
        const QJsonValue implementation = row.value(QLatin1String("implementation"));
        if (implementation.isUndefined())
            record.implementation = isWebAddress(record.source) ? Implementation::Web : Implementation::Local;
        else
            record.implementation = ImplFromName(implementation.toString());
        if (record.implementation == Implementation::None) {
            LOG(WARNING) << "Nag map row " << index << " has an unknown implementation; skipped";
            continue;
        }
        const QJsonArray modules = row.value(QLatin1String("modules")).toArray();
        for (const QJsonValue& module : modules) {
            if (module.isString())
                record.modules.append(module.toString());
        }
        record.id = row.value(QLatin1String("id")).toString();
        record.name = row.value(QLatin1String("name")).toString();
        record.disabled = row.value(QLatin1String("disabled")).toBool(false);
        config.Add(mode, record);
    }
    return config;
}

std::optional<NagConfig> NagConfig::fromFile(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        LOG(ERROR) << "Cannot read the nag map " << Util::QStringToUtf8(path) << ": "
                   << Util::QStringToUtf8(file.errorString());
        return std::nullopt;
    }
    return fromJson(file.readAll());
}

std::map<QString, NagRecord> NagConfig::ActionsForMode(const QString& mode) const
{
    const auto it = m_rows.find(mode);
    return it == m_rows.end() ? std::map<QString, NagRecord>() : it->second;
}

std::optional<NagRecord> NagConfig::Find(const QString& mode, const QString& action) const
{
    for (const QString& candidate : {mode, AppMode::AnyMode()}) {
        const auto rows = m_rows.find(candidate);
        if (rows == m_rows.end())
            continue;
        const auto row = rows->second.find(action);
        if (row != rows->second.end())
            return row->second;
    }
    return std::nullopt;
}

QStringList NagConfig::ActionsIn(const QString& mode) const
{
    QStringList actions;
    for (const QString& candidate : {mode, AppMode::AnyMode()}) {
        const auto rows = m_rows.find(candidate);
        if (rows == m_rows.end())
            continue;
        for (const auto& row : rows->second) {
            if (!actions.contains(row.first))
                actions.append(row.first);
        }
    }
    return actions;
}

void NagConfig::Add(const QString& mode, const NagRecord& record)
{
    m_rows[mode][record.action] = record;
}

std::size_t NagConfig::size() const
{
    std::size_t count = 0;
    for (const auto& mode : m_rows)
        count += mode.second.size();
    return count;
}

} // namespace Ostrel::App::NagScreen
