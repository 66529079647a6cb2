#include "Core/LinksManager.h"

#include "Foundation/PersonalDataMask.h"
#include "Foundation/Utf8.h"
#include "Interfaces/ICustomizationManager.h"
#include "Interfaces/IHardwareInfo.h"
#include "Interfaces/IInstallerSettingsManager.h"
#include "Interfaces/ILaunchTypeProcessor.h"
#include "Interfaces/ILookAndFeelManager.h"
#include "Interfaces/IMailSettingsManager.h"
#include "Interfaces/IPartnerTracking.h"
#include "Interfaces/IProductSettingsManager.h"
#include "Interfaces/IUserSettingsManager.h"

#include <glog/logging.h>

#include <QCryptographicHash>
#include <QDesktopServices>
#include <QUrl>

#include <optional>

namespace Ostrel::App {

namespace {

QString encoded(const QString& value)
{
    return QString::fromLatin1(QUrl::toPercentEncoding(value));
}

QString boolText(bool value)
{
    return value ? QStringLiteral("true") : QStringLiteral("false");
}

// A macro name between its two dashes: upper-case letters and underscores only, so that the
// dashes of ordinary paths ("/learn-more-hotkeys/") are never taken for one.
bool isMacroName(const QStringRef& name)
{
    if (name.isEmpty())
        return false;
    for (const QChar c : name) {
        if (!((c >= QLatin1Char('A') && c <= QLatin1Char('Z')) || c == QLatin1Char('_')))
            return false;
    }
    return true;
}

} // namespace

class LinksManager::Impl
{
public:
    std::shared_ptr<ICustomizationManager> customization;
    std::shared_ptr<IHardwareInfo> hardwareInfo;
    std::shared_ptr<ILookAndFeelManager> lookAndFeel;
    std::shared_ptr<IMailSettingsManager> mailSettings;
    std::shared_ptr<IProductSettingsManager> productSettings;
    std::shared_ptr<IUserSettingsManager> userSettings;
    std::shared_ptr<ILaunchTypeProcessor> launchType;
    std::shared_ptr<IPartnerTracking> partnerTracking;
    std::shared_ptr<IInstallerSettingsManager> installerSettings;

    QString locale() const { return Util::Utf8ToQString(lookAndFeel->GetCurrentLocale()); }
    QString version() const { return Util::Utf8ToQString(customization->GetVersion()); }

    QString tail() const
    {
        const std::string hardwareId = hardwareInfo->GetHardwareId();
        const QString huid =
            hardwareId.empty()
                ? QString()
                : QString::fromLatin1(QCryptographicHash::hash(QByteArray::fromStdString(hardwareId),
                                                               QCryptographicHash::Sha1)
                                          .toHex());
        QList<QPair<QString, QString>> query = {
            {QStringLiteral("app"), Util::Utf8ToQString(customization->GetInternalId())},
            {QStringLiteral("version"), version()},
            {QStringLiteral("lang"), locale()},
            {QStringLiteral("partner"),
             Util::Utf8ToQString(productSettings->GetString("PartnerName", customization->GetPartnerName()))},
            {QStringLiteral("brand"), Util::Utf8ToQString(customization->GetBrand())},
            {QStringLiteral("huid"), huid},
            {QStringLiteral("lt"), QString::number(launchType->GetLaunchType())},
        };
        const std::string webUid = userSettings->GetString("WEBUID", std::string());
        if (!webUid.empty())
            query.append({QStringLiteral("webuid"), Util::Utf8ToQString(webUid)});
        QString result;
        for (const auto& [key, value] : query) {
            if (!result.isEmpty())
                result += QLatin1Char('&');
            result += key + QLatin1Char('=') + encoded(value);
        }
        return result;
    }

    // A personal value is masked wherever the shell records a URL that carries it, whatever
    // part of the URL a customized template puts it in.
    static QString personal(const QString& value)
    {
        Core::PersonalDataMask::rememberPersonalValue(value);
        return encoded(value);
    }

    // The value of a built-in macro, already in its final form; nothing for an unknown name.
    std::optional<QString> macro(const QString& name) const
    {
        if (name == QLatin1String("-TAIL_WITH_ARGS-"))
            return tail();
        if (name == QLatin1String("-AMP-"))
            return QStringLiteral("&");
        if (name == QLatin1String("-LANG-"))
            return encoded(locale());
        if (name == QLatin1String("-APP_VERSION-"))
            return encoded(version());
        if (name == QLatin1String("-NAME-"))
            return personal(Util::Utf8ToQString(mailSettings->GetString("UserName", std::string())));
        if (name == QLatin1String("-EMAIL-"))
            return personal(Util::Utf8ToQString(mailSettings->GetString("UserEmail", std::string())));
        if (name == QLatin1String("-NEWSLETTER_CONFIRMED-"))
            return boolText(mailSettings->GetBool("isConfirmed", false));
        if (name == QLatin1String("-ADDITIONALS_INSTALLED-"))
            return boolText(installerSettings && installerSettings->GetBool("AdditionalsInstalled", false));
        return std::nullopt;
    }

    // The built-in template with the customization's hosts, or the customization's own template.
    QString templateFor(const std::string& keyName, bool* known) const
    {
        const auto& templates = UrlTemplates;
        const auto builtIn = templates.find(keyName);
        *known = builtIn != templates.end();
        const std::string custom = customization->GetCustomValue("Links/" + keyName);
        if (!custom.empty())
            return Util::Utf8ToQString(custom);
        if (!*known)
            return QString();
        QString result = Util::Utf8ToQString(builtIn->second);
        for (const auto& [endpoint, defaultHost] : UrlEndpointHosts()) {
            const QString prefix = QStringLiteral("https://") + Util::Utf8ToQString(defaultHost);
            if (!result.startsWith(prefix) ||
                (result.size() > prefix.size() && result.at(prefix.size()) != QLatin1Char('/')))
                continue;
            const std::string host = customization->GetCustomValue("Hosts/" + endpoint);
            if (!host.empty())
                result.replace(0, prefix.size(), QStringLiteral("https://") + Util::Utf8ToQString(host));
            break;
        }
        return result;
    }
};

LinksManager::LinksManager(const Required<ICustomizationManager>& customization,
                           const Required<IHardwareInfo>& hardwareInfo,
                           const Required<ILookAndFeelManager>& lookAndFeel,
                           const Required<IMailSettingsManager>& mailSettings,
                           const Required<IProductSettingsManager>& productSettings,
                           const Required<IUserSettingsManager>& userSettings,
                           const Required<ILaunchTypeProcessor>& launchType,
                           const std::shared_ptr<IPartnerTracking>& partnerTracking,
                           const std::shared_ptr<IInstallerSettingsManager>& installerSettings)
    : d(std::make_unique<Impl>())
{
    d->customization = customization;
    d->hardwareInfo = hardwareInfo;
    d->lookAndFeel = lookAndFeel;
    d->mailSettings = mailSettings;
    d->productSettings = productSettings;
    d->userSettings = userSettings;
    d->launchType = launchType;
    d->partnerTracking = partnerTracking;
    d->installerSettings = installerSettings;
}

LinksManager::~LinksManager() = default;

QString LinksManager::GetUrl(const QString& key) const
{
    bool known = false;
    const QString urlTemplate = d->templateFor(Util::QStringToUtf8(key), &known);
    if (!known && urlTemplate.isEmpty()) {
        LOG(WARNING) << "No link under the key name \"" << Util::QStringToUtf8(key) << "\"";
        return QString();
    }
    return urlTemplate.isEmpty() ? QString() : GenerateUrl(urlTemplate, {});
}

QString LinksManager::GetUrl(URLKeys key) const
{
    const auto& names = UrlKeyNames;
    const auto name = names.find(key);
    if (name == names.end()) {
        LOG(WARNING) << "No link under the key number " << static_cast<int>(key);
        return QString();
    }
    return GetUrl(Util::Utf8ToQString(name->second));
}

QString LinksManager::GenerateUrl(const QString& url, QMap<QString, QString> parameters) const
{
    QString result;
    result.reserve(url.size() * 2);
    bool inQuery = false;
    int i = 0;
    while (i < url.size()) {
        const QChar c = url.at(i);
        if (c == QLatin1Char('%') && i + 1 < url.size() && url.at(i + 1).isDigit()) {
            int end = i + 1;
            while (end < url.size() && url.at(end).isDigit())
                ++end;
            const QString number = url.mid(i + 1, end - i - 1);
            const QString placeholder = url.mid(i, end - i);
            const auto value = parameters.contains(placeholder) ? parameters.constFind(placeholder)
                                                                : parameters.constFind(number);
            result += value == parameters.cend() ? placeholder : (inQuery ? encoded(*value) : *value);
            i = end;
            continue;
        }
        if (c == QLatin1Char('-')) {
            const int close = url.indexOf(QLatin1Char('-'), i + 1);
            if (close > i && isMacroName(url.midRef(i + 1, close - i - 1))) {
                const QString name = url.mid(i, close - i + 1);
                const auto given = parameters.constFind(name);
                const std::optional<QString> value =
                    given != parameters.cend() ? std::optional<QString>(*given) : d->macro(name);
                if (value) {
                    result += *value;
                    i = close + 1;
                    continue;
                }
            }
        }
        if (c == QLatin1Char('?'))
            inQuery = true;
        result += c;
        ++i;
    }

    // Whatever filled no placeholder joins the query.
    for (auto it = parameters.cbegin(); it != parameters.cend(); ++it) {
        const QString& key = it.key();
        const bool positional = !key.isEmpty() && (key.at(0).isDigit() || key.startsWith(QLatin1Char('%')));
        const bool macroKey =
            key.size() > 2 && key.startsWith(QLatin1Char('-')) && key.endsWith(QLatin1Char('-'));
        if (positional || macroKey || key.isEmpty())
            continue;
        if (!result.contains(QLatin1Char('?')))
            result += QLatin1Char('?');
        else if (!result.endsWith(QLatin1Char('&')) && !result.endsWith(QLatin1Char('?')))
            result += QLatin1Char('&');
        result += encoded(key) + QLatin1Char('=') + encoded(it.value());
    }
    return result;
}

void LinksManager::OpenUrl(const QString& url) const
{
    const QUrl target(url);
    if (url.isEmpty() || !target.isValid()) {
        LOG(WARNING) << "Not opening the link \"" << Util::QStringToUtf8(Core::PersonalDataMask::mask(url))
                     << "\": "
                     << (url.isEmpty() ? std::string("it is empty")
                                       : Util::QStringToUtf8(target.errorString()));
        return;
    }
    if (!QDesktopServices::openUrl(target))
        LOG(WARNING) << "Nothing opened the link " << Util::QStringToUtf8(Core::PersonalDataMask::mask(url));
}

void LinksManager::OpenUrl(URLKeys key) const
{
    OpenUrl(GetUrl(key));
}

} // namespace Ostrel::App
