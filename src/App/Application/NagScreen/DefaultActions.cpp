#include "App/Application/NagScreen/DefaultActions.h"

#include "App/Application/NagScreen/AcceptNagLink.h"
#include "Email/EmailSender.h"
#include "Foundation/Utf8.h"
#include "Interfaces/ICustomizationManager.h"
#include "Interfaces/IHttpClient.h"
#include "Interfaces/IInternetConnectionChecker.h"
#include "Interfaces/ILinksManager.h"
#include "Interfaces/IMailSettingsManager.h"
#include "Nag/AbstractContent.h"
#include "Nag/INagLinksOpener.h"
#include "Nag/NagContext.h"
#include "Tracking/ApplicationTrackerFactory.h"

#include <glog/logging.h>

#include <QClipboard>
#include <QGuiApplication>

#include <optional>
#include <vector>

namespace Ostrel::App::NagScreen {

namespace {

struct LinkRow
{
    QString action;
    std::optional<QString> mode; // none: any mode
    URLKeys key;
};

const std::vector<LinkRow>& buyNowRows()
{
    static const std::vector<LinkRow> rows = {
        {AppAction::BeforeRoutine(), AppMode::Free(), BUY_NOW_URL_se},
        {AppAction::AppStart(), AppMode::Trial(), BUY_NOW_URL_firststart},
        {AppAction::AppClose(), AppMode::Free(), BUY_NOW_URL_traymenu},
        {AppAction::AuthorizationWindow(), std::nullopt, BUY_NOW_URL_nag_authorization_window_buynow},
    };
    return rows;
}

const std::vector<LinkRow>& liveChatRows()
{
    static const std::vector<LinkRow> rows = {
        {AppAction::BeforeRoutine(), AppMode::Trial(), LIVECHAT_URL_menu},
        {AppAction::AppClose(), AppMode::Trial(), CONTACT_SUPPORT_URL_menu},
    };
    return rows;
}

std::optional<URLKeys> findKey(const std::vector<LinkRow>& rows, const QString& mode, const QString& action)
{
    for (const LinkRow& row : rows) {
        if (row.action == action && (!row.mode || *row.mode == mode))
            return row.key;
    }
    return std::nullopt;
}

// The pointers stand in the line as they always have: the line only says that a lookup missed.
void logNoLink(const char* function, const QString& mode, const QString& action)
{
    LOG(ERROR) << function << ": There is no asrc for mode " << static_cast<const void*>(mode.data())
               << " and action " << static_cast<const void*>(action.data());
}

} // namespace

class DefaultActions::Impl
{
public:
    std::weak_ptr<ILinksManager> linksManager;
    std::weak_ptr<INagLinksOpener> linksOpener;
    std::shared_ptr<ICustomizationManager> customizationManager;
    std::shared_ptr<IInternetConnectionChecker> internetConnectionChecker;
    std::unique_ptr<EmailSender> emailSender;
};

DefaultActions::DefaultActions(const std::shared_ptr<ILinksManager>& linksManager,
                               const std::weak_ptr<INagLinksOpener>& linksOpener,
                               const std::shared_ptr<ICustomizationManager>& customizationManager,
                               const std::shared_ptr<IInternetConnectionChecker>& internetConnectionChecker,
                               const std::shared_ptr<Networking::IHttpClient>& httpClient,
                               const std::shared_ptr<IMailSettingsManager>& mailSettingsManager)
    : d(std::make_unique<Impl>())
{
    d->linksManager = linksManager;
    d->linksOpener = linksOpener;
    d->customizationManager = customizationManager;
    d->internetConnectionChecker = internetConnectionChecker;
    // Without links or mail settings an address cannot be sent; every other action still works.
    if (linksManager && mailSettingsManager)
        d->emailSender = std::make_unique<EmailSender>(linksManager, httpClient, mailSettingsManager);
    else
        LOG(WARNING) << "Nags cannot collect e-mail addresses: no links manager or mail settings";
}

DefaultActions::~DefaultActions() = default;

QUrl DefaultActions::Key2url(URLKeys key) const
{
    const auto links = d->linksManager.lock();
    if (!links)
        return {};
    return QUrl(links->GetUrl(key), QUrl::TolerantMode);
}

QUrl DefaultActions::PrepareUrl(const AbstractContent& content, const QString& urlText) const
{
    const auto links = d->linksManager.lock();
    if (!links)
        return {};
    QMap<QString, QString> macros;
    macros.insert(QStringLiteral("-APP_MODE-"), content.AppMode());
    macros.insert(QStringLiteral("-APP_ACTION-"), content.AppAction());
    macros.insert(QStringLiteral("-NAG_ID-"), content.Id());
    return QUrl(links->GenerateUrl(urlText, macros), QUrl::TolerantMode);
}

void DefaultActions::DoOpenUrl(const AbstractContent& content, const QUrl& url,
                               const QMap<QString, QVariant>& params)
{
    if (!AcceptNagLink(url))
        return;
    if (const auto opener = d->linksOpener.lock())
        opener->OpenUrl(content, url.url(), params);
}

void DefaultActions::OpenUrl(const AbstractContent& content, const QUrl& url,
                             const QMap<QString, QVariant>& params)
{
    DoOpenUrl(content, PrepareUrl(content, url.toString()), params);
}

void DefaultActions::OpenUrlKey(const AbstractContent& content, const QString& key,
                                const QMap<QString, QVariant>& params)
{
    const auto links = d->linksManager.lock();
    if (!links)
        return;
    OpenUrl(content, QUrl(links->GetUrl(key), QUrl::TolerantMode), params);
}

void DefaultActions::ShowBuyNow(const AbstractContent& content)
{
    const QString mode = content.AppMode();
    const QString action = content.AppAction();
    if (const auto key = findKey(buyNowRows(), mode, action))
        OpenUrl(content, Key2url(*key), {});
    else
        logNoLink("Ostrel::App::NagScreen::DefaultActions::ShowBuyNow", mode, action);
}

void DefaultActions::OpenLiveChat(const AbstractContent& content)
{
    const QString mode = content.AppMode();
    const QString action = content.AppAction();
    if (const auto key = findKey(liveChatRows(), mode, action))
        OpenUrl(content, Key2url(*key), {});
    else
        logNoLink("Ostrel::App::NagScreen::DefaultActions::OpenLiveChat", mode, action);
}

void DefaultActions::PerformButtonAction(const AbstractContent&, const QString&, const QVariant&) {}

void DefaultActions::NagDontShowClicked(const AbstractContent&) {}

void DefaultActions::NagClose(const AbstractContent&, int, const QMap<QString, QVariant>&) {}

void DefaultActions::ScreenShown(const AbstractContent&, const QMap<QString, QVariant>&) {}

void DefaultActions::PerformCustomAction(const AbstractContent& content, const QString& action,
                                         const QVariant& value)
{
    if (action == QLatin1String("copyPromocode")) {
        CopyPromocode(value.toMap().value(QStringLiteral("promocode")).toString());
    } else if (action == QLatin1String("collectEmail")) {
        std::map<std::string, std::string> params;
        params["NAG_ID"] = Util::QStringToUtf8(content.Id());
        params["NAG_NAME"] = Util::QStringToUtf8(content.Name());
        params["NAG_TYPE"] = Util::QStringToUtf8(content.Type());
        params["NAG_APP_MODE"] = Util::QStringToUtf8(content.AppMode());
        params["NAG_APP_ACTION"] = Util::QStringToUtf8(content.AppAction());
        const QVariantMap fields = value.toMap();
        const QString email = fields.value(QStringLiteral("email")).toString();
        const QString name = fields.value(QStringLiteral("name")).toString();
        CollectEmail(name, email, std::move(params));
    } else {
        LOG(WARNING) << "Unsupported action: " << Util::QStringToUtf8(action);
    }
}

void DefaultActions::CollectEmail(const QString& name, const QString& email,
                                  std::map<std::string, std::string> params)
{
    const std::map<std::string, std::string> request = {
        {"UserName", Util::QStringToUtf8(name)},
        {"UserEmail", Util::QStringToUtf8(email)},
        {"isConfirmed", "1"},
        {"IsRegUser", "1"},
    };
    // The callback may come on the HTTP client's thread: it keeps its own copy of the parameters
    // and touches nothing of this object.
    auto report = [params = std::move(params)](bool success, const std::string& error) mutable {
        if (success)
            return;
        LOG(ERROR) << "CollectEmail request failed, error: " << error;
        params["ERROR_TEXT"] = error;
        if (const auto tracker = Tracking::ApplicationTrackerFactory::getApplicationTracker())
            tracker->sendEvent("NAG_FAILED_SEND_EMAIL", params);
    };
    params.clear();
    if (!d->emailSender) {
        report(false, "no e-mail sender");
        return;
    }
    d->emailSender->SendEmail(request, report);
}

void DefaultActions::CopyPromocode(const QString& promocode)
{
    if (QClipboard* clipboard = QGuiApplication::clipboard())
        clipboard->setText(promocode);
}

void DefaultActions::SetLinksOpener(const std::shared_ptr<INagLinksOpener>& opener)
{
    d->linksOpener = opener;
}

std::shared_ptr<INagLinksOpener> DefaultActions::GetLinksOpener() const
{
    return d->linksOpener.lock();
}

void DefaultActions::SetLinksManager(const std::shared_ptr<ILinksManager>& manager)
{
    d->linksManager = manager;
}

std::shared_ptr<ILinksManager> DefaultActions::GetLinksManager() const
{
    return d->linksManager.lock();
}

} // namespace Ostrel::App::NagScreen
