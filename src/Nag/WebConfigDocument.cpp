#include "Nag/WebConfigDocument.h"
#include "Foundation/Utf8.h"

#include <glog/logging.h>

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>

namespace Ostrel::App::WebConfig {

namespace {

bool criterionHolds(const QJsonValue& criterion, const QString& locale)
{
    const QJsonObject object = criterion.toObject();
    const QString type = object.value(QLatin1String("Type")).toString();
    if (type == QLatin1String("Locale"))
        return object.value(QLatin1String("Value")).toString() == locale;
    return false;
}

bool overrideApplies(const QJsonObject& entry, const QString& locale)
{
    const QJsonValue criteria = entry.value(QLatin1String("Criteria"));
    if (!criteria.isArray() || !entry.contains(QLatin1String("Value")))
        return false;
    const QJsonArray list = criteria.toArray();
    for (const QJsonValue& criterion : list) {
        if (!criterionHolds(criterion, locale))
            return false;
    }
    return true;
}

} // namespace

WebConfigDocument::WebConfigDocument() = default;

WebConfigDocument::WebConfigDocument(QJsonObject root) : m_root(std::move(root)) {}

WebConfigDocument WebConfigDocument::fromJson(const QByteArray& json)
{
    QJsonParseError error{};
    const QJsonDocument document = QJsonDocument::fromJson(json, &error);
    if (!document.isObject()) {
        LOG(ERROR) << "The web configuration is not a JSON object ("
                   << Util::QStringToUtf8(error.errorString()) << " at " << error.offset << "); using none";
        return {};
    }
    return WebConfigDocument(document.object());
}

WebConfigDocument WebConfigDocument::defaults()
{
    QFile file(QStringLiteral(":/webConfig/defaultWebConfig.json"));
    if (!file.open(QIODevice::ReadOnly)) {
        LOG(ERROR) << "The built-in web configuration is missing from the resources";
        return {};
    }
    return fromJson(file.readAll());
}

bool WebConfigDocument::isEmpty() const
{
    return m_root.isEmpty();
}

QVariant WebConfigDocument::value(const QString& section, const QString& key, const QString& locale,
                                  const QVariant& fallback) const
{
    const QJsonValue entryValue = m_root.value(section).toObject().value(key);
    if (!entryValue.isObject())
        return fallback;
    const QJsonObject entry = entryValue.toObject();
    const QJsonArray overrides = entry.value(QLatin1String("Values")).toArray();
    for (const QJsonValue& candidate : overrides) {
        const QJsonObject object = candidate.toObject();
        if (overrideApplies(object, locale))
            return object.value(QLatin1String("Value")).toVariant();
    }
    if (!entry.contains(QLatin1String("DefaultValue")))
        return fallback;
    return entry.value(QLatin1String("DefaultValue")).toVariant();
}

WebConfigDocument WebConfigDocument::mergedWith(const WebConfigDocument& other) const
{
    QJsonObject merged = m_root;
    for (auto section = other.m_root.constBegin(); section != other.m_root.constEnd(); ++section) {
        QJsonObject keys = merged.value(section.key()).toObject();
        const QJsonObject incoming = section.value().toObject();
        for (auto key = incoming.constBegin(); key != incoming.constEnd(); ++key)
            keys.insert(key.key(), key.value());
        merged.insert(section.key(), keys);
    }
    return WebConfigDocument(merged);
}

} // namespace Ostrel::App::WebConfig
