#include "App/Application/NagScreen/WebNagUrlGenerator.h"

#include "App/Application/ITopManager.h"
#include "App/Application/NagScreen/INagIdLockStorage.h"
#include "App/Application/RequiredComponent.h"
#include "Foundation/SHA1.h"
#include "Foundation/SystemInfo.h"
#include "Foundation/Utf8.h"
#include "Interfaces/ICustomizationManager.h"
#include "Interfaces/IHardwareInfo.h"
#include "Interfaces/ILinksManager.h"
#include "Interfaces/ILookAndFeelManager.h"
#include "Interfaces/IProductSettingsManager.h"
#include "Interfaces/IUserSettingsManager.h"
#include "QtUtil/UrlProtocol.h"

#include <glog/logging.h>

#include <QMap>

#include <cstdlib>
#include <ctime>
#include <stdexcept>

namespace Ostrel::App::NagScreen {

namespace {

// The name under which the nag server knows this product.
const char* productAppName()
{
    return "home-capture-desk";
}

// Stays beside requiredComponent: that one only logs, while an address without the component is wrong.
template <class T> std::shared_ptr<T> required(const ITopManager& top, const char* what)
{
    auto component = requiredComponent<T>(top, "WebNagUrlGenerator");
    if (!component)
        throw std::logic_error(std::string("WebNagUrlGenerator: no ") + what);
    return component;
}

// Nags of this action and mode that the user asked not to see again, each followed by a comma:
// the server splits on the comma and ignores the empty tail.
QString excludedNags(const IProductSettingsManager& settings, const QString& action, const QString& mode)
{
    const std::string group = "dontShowNag_" + Util::QStringToUtf8(action) + "_" + Util::QStringToUtf8(mode);
    QString result;
    for (const std::string& child : settings.ChildKeys(group)) {
        if (settings.GetBool(group + "/" + child, true))
            result += Util::Utf8ToQString(child) + QLatin1Char(',');
    }
    return result;
}

} // namespace

const QString& WebNagUrlGenerator::QueryTemplate()
{
    static const QString query = QStringLiteral(
        "?app=-APP_NAME-&module=-MODULE_NAME-&app_ver=-APP_VERSION-&partner=-PARTNER-&app_mode=-APP_MODE-"
        "&lang=-LANG-&app_action=-APP_ACTION-&huid=-USERID-&protocol=1&os=-OS_VERSION-&os_bits=-OS_BITS-"
        "&platform=-PLATFORM-&cpu_arch=-CPU_ARCH-&excludeId=-EXCLUDE-&include_id=-INCLUDE_NAG_ID-"
        "&bundle_name=-BUNDLE_NAME-&webuid=-WEBUID-&market=global&brand=-BRAND_NAME-&gift_id=-GIFT_ID-");
    return query;
}

WebNagUrlGenerator::WebNagUrlGenerator(const ITopManager& top,
                                       const std::shared_ptr<INagIdLockStorage>& storage)
    : m_appName(QString::fromLatin1(productAppName())), m_top(top), m_storage(storage)
{
    const auto customization = top.get<ICustomizationManager>();
    if (m_appName.isEmpty() && customization)
        m_appName = Util::Utf8ToQString(customization->GetInternalId());
    // The server tells builds apart by the whole version: "24.1.0" is asked as 24-1-0, not as the
    // "24.1" the user sees (GenerateApplicationVisibleVersion trims for the eye only).
    if (customization)
        m_appVersion = Util::Utf8ToQString(customization->GetVersion())
                           .trimmed()
                           .replace(QLatin1Char('.'), QLatin1Char('-'));
    else
        LOG(ERROR) << "The web nag URL has no product version: the customization manager is not set yet";
}

WebNagUrlGenerator::WebNagUrlGenerator(const ITopManager& top, const QString& appName)
    : m_appName(appName), m_top(top)
{
}

WebNagUrlGenerator::~WebNagUrlGenerator() = default;

QString WebNagUrlGenerator::LanguageCode(const QString& locale)
{
    if (locale == QLatin1String("ja_JP"))
        return QStringLiteral("jp");
    if (locale == QLatin1String("zh_TW") || locale == QLatin1String("zh_CN"))
        return locale;
    QString code = locale.left(2);
    // The server has always received two characters, padded with NULs for a shorter text.
    while (code.size() < 2)
        code += QChar(0);
    return code;
}

QUrl WebNagUrlGenerator::Generate(const QString& mode, const QString& action, const QString& lang)
{
    std::srand(static_cast<unsigned>(std::time(nullptr)));

    const auto customization = required<ICustomizationManager>(m_top, "customization manager");
    const auto productSettings = required<IProductSettingsManager>(m_top, "product settings");
    const auto userSettings = required<IUserSettingsManager>(m_top, "user settings");
    const auto links = required<ILinksManager>(m_top, "links manager");
    const auto hardware = m_top.get<IHardwareInfo>();

    std::string userId = hardware ? hardware->GetHardwareId() : std::string();
    if (!userId.empty())
        userId = Util::SHA1::digest(userId);

    QString includeId;
    if (m_storage)
        includeId = Util::Utf8ToQString(
            m_storage->getLockedNagId(Util::QStringToUtf8(action), Util::QStringToUtf8(mode)));
    else
        LOG(ERROR) << "A web nag URL was asked of a generator without a lock storage; no nag id is included";

    QMap<QString, QString> macros;
    macros.insert(QStringLiteral("-APP_NAME-"), m_appName);
    macros.insert(QStringLiteral("-MODULE_NAME-"), Util::Utf8ToQString(customization->GetModuleName()));
    macros.insert(QStringLiteral("-APP_VERSION-"), m_appVersion);
    macros.insert(QStringLiteral("-PARTNER-"),
                  Util::Utf8ToQString(productSettings->GetString("PartnerName", std::string())));
    macros.insert(QStringLiteral("-APP_MODE-"), mode);
    macros.insert(QStringLiteral("-LANG-"), LanguageCode(lang));
    macros.insert(QStringLiteral("-APP_ACTION-"), action);
    macros.insert(QStringLiteral("-USERID-"), Util::Utf8ToQString(userId));
    macros.insert(QStringLiteral("-OS_VERSION-"), Util::Utf8ToQString(Core::SystemName()));
    macros.insert(QStringLiteral("-OS_BITS-"), QString::number(Core::OSBits()));
    macros.insert(QStringLiteral("-PLATFORM-"), QString::number(Core::AppBits()));
    macros.insert(QStringLiteral("-CPU_ARCH-"), Util::Utf8ToQString(Core::ProcessorArchitecture()));
    macros.insert(QStringLiteral("-EXCLUDE-"), excludedNags(*productSettings, action, mode));
    macros.insert(QStringLiteral("-INCLUDE_NAG_ID-"), includeId);
    macros.insert(QStringLiteral("-BUNDLE_NAME-"),
                  Util::Utf8ToQString(productSettings->GetString("BUNDLE_NAME", "UNDEFINED")));
    macros.insert(QStringLiteral("-WEBUID-"),
                  Util::Utf8ToQString(userSettings->GetString("WEBUID", "UNDEFINED")));
    macros.insert(QStringLiteral("-BRAND_NAME-"), Util::Utf8ToQString(customization->GetBrand()));
    macros.insert(QStringLiteral("-GIFT_ID-"), QString::number(m_giftId ? m_giftId() : std::rand()));

    QString base = links->GetUrl(CUSTOM_WEB_NAG_URL);
    if (base.isEmpty())
        base = links->GetUrl(NAGS_REQUEST_URL);
    QString text = Util::ReplaceUrlProtocol(base) + QueryTemplate();
    for (auto it = macros.cbegin(); it != macros.cend(); ++it)
        text.replace(it.key(), it.value(), Qt::CaseSensitive);
    return QUrl(text, QUrl::TolerantMode);
}

QUrl WebNagUrlGenerator::Generate(const NagContext& context)
{
    const auto lookAndFeel = required<ILookAndFeelManager>(m_top, "look and feel manager");
    return Generate(context.mode, context.action, Util::Utf8ToQString(lookAndFeel->GetCurrentLocale()));
}

QString WebNagUrlGenerator::GetAppName() const
{
    return m_appName;
}

void WebNagUrlGenerator::SetAppName(const QString& appName)
{
    m_appName = appName;
}

void WebNagUrlGenerator::SetGiftIdSource(std::function<int()> source)
{
    m_giftId = std::move(source);
}

} // namespace Ostrel::App::NagScreen
