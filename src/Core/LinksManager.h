#pragma once

#include "Core/ostrel_core_export.h"
#include "Events/NotNull.h"
#include "Interfaces/ILinksManager.h"

#include <memory>

namespace Ostrel::App {

class ICustomizationManager;
class IHardwareInfo;
class IInstallerSettingsManager;
class ILaunchTypeProcessor;
class ILookAndFeelManager;
class IMailSettingsManager;
class IPartnerTracking;
class IProductSettingsManager;
class IUserSettingsManager;

/// The product's links: UrlTemplates filled from the components it is given, opened through
/// QDesktopServices so that a URL handler of the process sees every one.
///
/// The macros of a template:
///   "-TAIL_WITH_ARGS-"        the query common to every link, in this order:
///                               app      the customization's internal id ("ostrel-capture")
///                               version  the customization's version
///                               lang     the current locale of the look and feel
///                               partner  the product settings' "PartnerName", else the
///                                        customization's partner
///                               brand    the customization's brand
///                               huid     SHA-1 (hex) of the hardware id; empty without one
///                               lt       the launch type number
///                               webuid   the user settings' "WEBUID", only when it is set
///   "-AMP-"                   "&"
///   "-LANG-"                  the current locale
///   "-APP_VERSION-"           the customization's version
///   "-NAME-", "-EMAIL-"       the mail settings' "UserName" and "UserEmail"
///   "-NEWSLETTER_CONFIRMED-"  the mail settings' "isConfirmed", "true" or "false"
///   "-ADDITIONALS_INSTALLED-" the installer settings' "AdditionalsInstalled", "true" or "false"
///                             ("false" without installer settings)
/// Every value is percent-encoded. The filling is one pass over the template, so a value that
/// itself reads like a macro or a placeholder stays as it is.
///
/// The customization overrides: "Links/<key name>" replaces a key's template (and gives the
/// three empty ones a value); "Hosts/<endpoint>" replaces the default host of an endpoint of
/// UrlEndpointHosts() in the built-in templates.
class OSTREL_CORE_EXPORT LinksManager : public ILinksManager
{
public:
    template <class T> using Required = Core::NotNull<std::shared_ptr<T>>;

    LinksManager(const Required<ICustomizationManager>& customization,
                 const Required<IHardwareInfo>& hardwareInfo,
                 const Required<ILookAndFeelManager>& lookAndFeel,
                 const Required<IMailSettingsManager>& mailSettings,
                 const Required<IProductSettingsManager>& productSettings,
                 const Required<IUserSettingsManager>& userSettings,
                 const Required<ILaunchTypeProcessor>& launchType,
                 const std::shared_ptr<IPartnerTracking>& partnerTracking,
                 const std::shared_ptr<IInstallerSettingsManager>& installerSettings);
    ~LinksManager() override;

    /// Empty, with a WARNING line, for a name that is no key; empty for a key without a template.
    QString GetUrl(const QString& key) const override;
    QString GetUrl(URLKeys key) const override;
    /// `parameters` fill the template besides the macros above:
    ///   "%1" (or "1") and the like fill the positional placeholders; percent-encoded when the
    ///                 placeholder stands in the query, as given in the path ("%1" of
    ///                 OSTREL_CLOUD_API_URL is a path). A placeholder with no value stays.
    ///   "-NAME-" and the like replace a macro's own value (given as it should appear).
    ///   any other key is appended to the query as key=value, percent-encoded.
    QString GenerateUrl(const QString& url, QMap<QString, QString> parameters) const override;

    /// Logs a WARNING line for an empty or invalid URL, and for one that nothing opened.
    void OpenUrl(const QString& url) const override;
    void OpenUrl(URLKeys key) const override;

private:
    class Impl;
    std::unique_ptr<Impl> d;
};

} // namespace Ostrel::App
