#include "Core/CustomizationManager.h"
#include "Core/SettingsText_p.h"
#include "Foundation/Utf8.h"

#include <glog/logging.h>

#include <QCoreApplication>
#include <QFile>
#include <QSettings>
#include <QStringList>

#include <map>
#include <optional>

namespace Ostrel::App {

namespace {

const char* const CollectEmail = "CollectEmail";

// Keys and their built-in values, in a function so that nothing is built before main().
const std::map<std::string, std::string>& builtInDefaults()
{
    static const std::map<std::string, std::string> defaults = {
        {"ApplicationName", "Ostrel Capture"},
        {"Version", "1.0.0.0"},
        {"OrganizationName", "Ostrel"},
        {"PartnerName", "ostrel"},
        {"ModuleName", "capture"},
        {"Brand", "ostrel"},
        {CollectEmail, "false"},
        {"PageType", "thankyou"},
        {"UserAgentProduct", "OstrelCapture/1.0"},
        {"UserAgent", "Mozilla/5.0 (X11; Linux x86_64) OstrelCapture/1.0"},
        {"PresentableName", "Ostrel Capture"},
        {"InternalId", "ostrel-capture"},
    };
    return defaults;
}

} // namespace

class CustomizationManager::Impl
{
public:
    // Lays the file at `path` over the values gathered so far.
    void applyLayer(const QString& path)
    {
        // QSettings reports nothing for a missing file, so look first.
        if (!QFile::exists(path)) {
            // Most installations carry no customization: the defaults are the usual case.
            LOG(INFO) << "Customization file " << Util::QStringToUtf8(path) << " not found, using defaults";
            return;
        }
        QSettings file(path, QSettings::IniFormat);
        if (file.status() != QSettings::NoError) {
            LOG(WARNING) << "Customization file " << Util::QStringToUtf8(path)
                         << " is unreadable or broken, using defaults";
            return;
        }
        file.beginGroup(QStringLiteral("Customization"));
        for (auto& [key, value] : values) {
            const QVariant read = file.value(Util::Utf8ToQString(key));
            if (!read.isValid())
                continue;
            // An unquoted value with a comma reads as a list; the author meant the whole text.
            const QString text = read.userType() == QMetaType::QStringList
                                     ? read.toStringList().join(QStringLiteral(", "))
                                     : read.toString();
            if (key == CollectEmail && !SettingsText::parseBool(text)) {
                LOG(WARNING) << "Customization value CollectEmail=\"" << Util::QStringToUtf8(text) << "\" in "
                             << Util::QStringToUtf8(path) << " is not a boolean; keeping " << value;
                continue;
            }
            value = Util::QStringToUtf8(text.trimmed());
        }
        file.endGroup();
        for (const char* group : {"Hosts", "Links"}) {
            file.beginGroup(QString::fromLatin1(group));
            for (const QString& key : file.childKeys())
                customValues[std::string(group) + '/' + Util::QStringToUtf8(key)] =
                    Util::QStringToUtf8(file.value(key).toString().trimmed());
            file.endGroup();
        }
    }

    std::string value(const char* key) const { return values.at(key); }

    std::map<std::string, std::string> values = builtInDefaults();
    std::map<std::string, std::string> customValues;
    bool collectEmail = false;
};

CustomizationManager::CustomizationManager(const QString& filePath, const QString& embeddedPath)
    : d(std::make_unique<Impl>())
{
    if (!embeddedPath.isEmpty())
        d->applyLayer(embeddedPath);
    d->applyLayer(filePath.isEmpty() ? defaultFilePath() : filePath);
    d->collectEmail = SettingsText::parseBool(Util::Utf8ToQString(d->value(CollectEmail))).value_or(false);
}

CustomizationManager::~CustomizationManager() = default;

QString CustomizationManager::defaultFilePath()
{
    return QCoreApplication::applicationDirPath() + QStringLiteral("/CaptureDeskCustom.ini");
}

std::string CustomizationManager::GetApplicationName() const
{
    return d->value("ApplicationName");
}

std::string CustomizationManager::GetVersion() const
{
    return d->value("Version");
}

std::string CustomizationManager::GetOrganizationName() const
{
    return d->value("OrganizationName");
}

std::string CustomizationManager::GetPartnerName() const
{
    return d->value("PartnerName");
}

std::string CustomizationManager::GetModuleName() const
{
    return d->value("ModuleName");
}

std::string CustomizationManager::GetBrand() const
{
    return d->value("Brand");
}

bool CustomizationManager::IsEmailCollectionEnabled() const
{
    return d->collectEmail;
}

std::string CustomizationManager::GetPageType() const
{
    return d->value("PageType");
}

std::pair<std::string, std::string> CustomizationManager::GetUserAgent() const
{
    return {d->value("UserAgentProduct"), d->value("UserAgent")};
}

std::string CustomizationManager::GetPresentableName() const
{
    return d->value("PresentableName");
}

std::string CustomizationManager::GetInternalId() const
{
    return d->value("InternalId");
}

std::string CustomizationManager::GetCustomValue(const std::string& key) const
{
    const auto found = d->customValues.find(key);
    return found == d->customValues.end() ? std::string() : found->second;
}

} // namespace Ostrel::App
