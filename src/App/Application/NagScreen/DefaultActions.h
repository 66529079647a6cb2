#pragma once

#include "App/Application/ostrel_app_export.h"
#include "Interfaces/URLKeys.h"
#include "Nag/IActionStrategy.h"

#include <map>
#include <memory>
#include <string>

namespace Ostrel::Networking {
class IHttpClient;
}

namespace Ostrel::App {
class ICustomizationManager;
class IInternetConnectionChecker;
class ILinksManager;
class IMailSettingsManager;
} // namespace Ostrel::App

namespace Ostrel::App::NagScreen {

class INagLinksOpener;

/// The product's answers to what a nag asks for: links (with the nag's own macros filled at the
/// click), the purchase and live chat pages, a promo code on the clipboard, an address to collect.
///
/// The links objects are held weakly: an action whose links objects have gone does nothing.
/// PerformButtonAction, NagDontShowClicked, NagClose and ScreenShown do nothing here; they exist
/// for the tracking decorator and for subclasses.
///
/// Purchase links by action and mode (the first row that matches wins):
///   before_routine  free   BUY_NOW_URL_se           (the watermark offer before an export)
///   app_start       trial  BUY_NOW_URL_firststart   (a trial user right after start)
///   app_close       free   BUY_NOW_URL_traymenu     (leaving for the tray with the free edition)
///   authorization_window, any mode: BUY_NOW_URL_nag_authorization_window_buynow
/// Live chat, for the users who are still deciding:
///   before_routine  trial  LIVECHAT_URL_menu
///   app_close       trial  CONTACT_SUPPORT_URL_menu (support answers once chat hours are over)
class OSTREL_APP_EXPORT DefaultActions : public IActionStrategy
{
public:
    DefaultActions(const std::shared_ptr<ILinksManager>& linksManager,
                   const std::weak_ptr<INagLinksOpener>& linksOpener,
                   const std::shared_ptr<ICustomizationManager>& customizationManager,
                   const std::shared_ptr<IInternetConnectionChecker>& internetConnectionChecker,
                   const std::shared_ptr<Networking::IHttpClient>& httpClient,
                   const std::shared_ptr<IMailSettingsManager>& mailSettingsManager);
    ~DefaultActions() override;
    DefaultActions(const DefaultActions&) = delete;
    DefaultActions& operator=(const DefaultActions&) = delete;

    void ShowBuyNow(const AbstractContent& content) override;
    void OpenLiveChat(const AbstractContent& content) override;
    void OpenUrl(const AbstractContent& content, const QUrl& url,
                 const QMap<QString, QVariant>& params) override;
    void OpenUrlKey(const AbstractContent& content, const QString& key,
                    const QMap<QString, QVariant>& params) override;
    void PerformButtonAction(const AbstractContent& content, const QString& buttonId,
                             const QVariant& value) override;
    void NagDontShowClicked(const AbstractContent& content) override;
    void NagClose(const AbstractContent& content, int code, const QMap<QString, QVariant>& params) override;
    /// "copyPromocode" ({"promocode"}) and "collectEmail" ({"email", "name"}); any other name is
    /// logged and dropped.
    void PerformCustomAction(const AbstractContent& content, const QString& action,
                             const QVariant& value) override;
    void ScreenShown(const AbstractContent& content, const QMap<QString, QVariant>& params) override;

    virtual void SetLinksOpener(const std::shared_ptr<INagLinksOpener>& opener);
    virtual std::shared_ptr<INagLinksOpener> GetLinksOpener() const;
    virtual void SetLinksManager(const std::shared_ptr<ILinksManager>& manager);
    virtual std::shared_ptr<ILinksManager> GetLinksManager() const;

    QUrl Key2url(URLKeys key) const;
    /// `urlText` with "-APP_MODE-", "-APP_ACTION-", "-NAG_ID-" of `content` and the links' own macros.
    QUrl PrepareUrl(const AbstractContent& content, const QString& urlText) const;
    /// Hands `url` to the links opener when AcceptNagLink takes it (web pages and mail only).
    void DoOpenUrl(const AbstractContent& content, const QUrl& url, const QMap<QString, QVariant>& params);
    /// Subscribes the address; a failure is reported as "NAG_FAILED_SEND_EMAIL" with `params`.
    void CollectEmail(const QString& name, const QString& email, std::map<std::string, std::string> params);
    static void CopyPromocode(const QString& promocode);

private:
    class Impl;
    std::unique_ptr<Impl> d;
};

} // namespace Ostrel::App::NagScreen
