#include "Nag/DefaultNagsSettings.h"

#include "Foundation/Utf8.h"

#include <QLocale>

namespace Ostrel::App::WebConfig {

namespace {
QString section()
{
    return QStringLiteral("NagScreenSettings");
}
} // namespace

DefaultNagsSettings::DefaultNagsSettings()
    : DefaultNagsSettings(WebConfigDocument::defaults(), QLocale().name())
{
}

DefaultNagsSettings::DefaultNagsSettings(WebConfigDocument document, QString locale)
    : m_document(std::move(document)), m_locale(std::move(locale))
{
}

DefaultNagsSettings::~DefaultNagsSettings() = default;

const WebConfigDocument& DefaultNagsSettings::document() const
{
    return m_document;
}

int DefaultNagsSettings::integer(const char* key, int fallback) const
{
    const QVariant value = m_document.value(section(), QLatin1String(key), m_locale);
    bool valid = false;
    const int result = value.type() == QVariant::Bool ? 0 : value.toInt(&valid);
    return valid ? result : fallback;
}

bool DefaultNagsSettings::boolean(const char* key, bool fallback) const
{
    const QVariant value = m_document.value(section(), QLatin1String(key), m_locale);
    return value.type() == QVariant::Bool ? value.toBool() : fallback;
}

std::string DefaultNagsSettings::text(const char* key, const char* fallback) const
{
    const QVariant value = m_document.value(section(), QLatin1String(key), m_locale);
    return value.type() == QVariant::String ? Util::QStringToUtf8(value.toString()) : std::string(fallback);
}

std::vector<std::string> DefaultNagsSettings::list(const char* key) const
{
    const QVariant value = m_document.value(section(), QLatin1String(key), m_locale);
    QStringList items;
    if (value.type() == QVariant::String)
        items = value.toString().split(QLatin1Char(','), Qt::SkipEmptyParts);
    else if (value.canConvert<QVariantList>())
        items = value.toStringList();
    std::vector<std::string> result;
    for (const QString& item : qAsConst(items)) {
        if (!item.trimmed().isEmpty())
            result.push_back(Util::QStringToUtf8(item.trimmed()));
    }
    return result;
}

int DefaultNagsSettings::nagIdleAfterStartTimeout() const
{
    return integer("NagIdleAfterStartTimeout", 60);
}
int DefaultNagsSettings::nagIdleAfterEditTimeout() const
{
    return integer("NagIdleAfterEditTimeout", 30);
}
int DefaultNagsSettings::delayBetweenDownload() const
{
    return integer("DelayBetweenDownload", 3600);
}
bool DefaultNagsSettings::useOldConfigDownloader() const
{
    return boolean("UseOldConfigDownloader", false);
}
bool DefaultNagsSettings::storeConfigBetweenSessions() const
{
    return boolean("StoreConfigBetweenSessions", true);
}
bool DefaultNagsSettings::useExtractedNagCache() const
{
    return boolean("UseExtractedNagCache", true);
}
bool DefaultNagsSettings::preloadNagContentOnStart() const
{
    return boolean("PreloadNagContentOnStart", false);
}
bool DefaultNagsSettings::storeNagsBetweenSessions() const
{
    return boolean("StoreNagsBetweenSessions", true);
}
std::string DefaultNagsSettings::nagDimmingName() const
{
    return text("NagDimmingName", "color");
}
std::string DefaultNagsSettings::nagDimmingParameters() const
{
    return text("NagDimmingParameters", "");
}
bool DefaultNagsSettings::sendNagHashEvent() const
{
    return boolean("SendNagHashEvent", false);
}
std::vector<std::string> DefaultNagsSettings::nagsProhibitedToDisable() const
{
    return list("NagsProhibitedToDisable");
}
std::vector<std::string> DefaultNagsSettings::nagsPriority() const
{
    return list("NagsPriority");
}
bool DefaultNagsSettings::asyncNagsLoad() const
{
    return boolean("AsyncNagsLoad", true);
}
bool DefaultNagsSettings::useNewNagsDrawer() const
{
    return boolean("UseNewNagsDrawer", true);
}

} // namespace Ostrel::App::WebConfig
