#include "App/Application/NagScreen/NagScreenEventHandler.h"

#include "App/Application/ITopManager.h"
#include "App/Application/NagScreen/DefaultActions.h"
#include "App/Application/RequiredComponent.h"
#include "Events/NotNull.h"
#include "Foundation/PersonalDataMask.h"
#include "Foundation/Utf8.h"
#include "Interfaces/ILinksManager.h"
#include "Interfaces/ILookAndFeelManager.h"
#include "Nag/AbstractContent.h"
#include "Nag/ContentParams.h"
#include "Nag/IManager.h"
#include "Nag/INagLinksOpener.h"
#include "Nag/IShowStrategy.h"
#include "Tracking/IApplicationTracker.h"

#include <boost/optional.hpp>
#include <glog/logging.h>

#include <QGuiApplication>
#include <QScreen>
#include <QUrlQuery>

#include <functional>
#include <map>
#include <stdexcept>
#include <string>

namespace Ostrel::App::NagScreen {

namespace {

using Params = std::map<std::string, std::string>;

// The parameters a nag passed from QML, under upper-case keys; values that aren't text are left out.
void ReadParams(Params& map, const QVariant& variant)
{
    if (!variant.canConvert<QVariantMap>()) {
        LOG(ERROR) << "Cannot convert QVariant to QMap, wrong parameters in QML function call";
        return;
    }
    const QVariantMap values = variant.toMap();
    for (auto it = values.cbegin(); it != values.cend(); ++it) {
        if (it.value().canConvert<QString>())
            map[Util::QStringToUtf8(it.key().toUpper())] = Util::QStringToUtf8(it.value().toString());
    }
}

void ReadLink(Params& map, const QString& urlText, const QString& fallbackId)
{
    const QUrl url(urlText, QUrl::TolerantMode);
    const QUrlQuery query(url);
    // A nag link may carry the user's name or address; tracking gets it masked.
    map["NAG_LINK_URL"] = Util::QStringToUtf8(Core::PersonalDataMask::mask(url.toDisplayString()));
    map["NAG_LINK_ID"] = Util::QStringToUtf8(query.hasQueryItem(QStringLiteral("link_id"))
                                                 ? query.queryItemValue(QStringLiteral("link_id"))
                                                 : fallbackId);
    map["NAG_ASRC"] = query.hasQueryItem(QStringLiteral("asrc"))
                          ? Util::QStringToUtf8(query.queryItemValue(QStringLiteral("asrc")))
                          : std::string("UNDEFINED");
}

QString withoutQuery(const QUrl& url)
{
    return url.adjusted(QUrl::RemoveQuery).toString();
}

// Which link key a clicked address came from, so that reports group clicks by key.
void FindLinkKey(Params& map, const QString& urlText)
{
    const QUrl clicked(urlText, QUrl::TolerantMode);
    const QString clickedBase = withoutQuery(clicked);
    const QString clickedAsrc = QUrlQuery(clicked).queryItemValue(QStringLiteral("asrc"));
    const auto& templates = UrlTemplates;
    for (const auto& [key, name] : UrlKeyNames) {
        const auto found = templates.find(name);
        if (found == templates.end() || found->second.empty())
            continue;
        const QUrl candidate(Util::Utf8ToQString(found->second), QUrl::TolerantMode);
        if (withoutQuery(candidate) == clickedBase &&
            QUrlQuery(candidate).queryItemValue(QStringLiteral("asrc")) == clickedAsrc) {
            map["NAG_LINK_URL_KEY"] = name;
            return;
        }
    }
}

bool isBinary(const QString& hash)
{
    return hash.count(QLatin1Char('1')) + hash.count(QLatin1Char('0')) == hash.size();
}

void AppendHashParams(Params& map, const IManager::NagHash& hash)
{
    map["NAG_HASH_NAME"] = Util::QStringToUtf8(hash.hashName);
    map["NAG_HASH_WIDTH"] = std::to_string(hash.hashSize.width());
    map["NAG_HASH_HEIGHT"] = std::to_string(hash.hashSize.height());
    map["NAG_INTERNAL_HASH"] = Util::QStringToUtf8(hash.internalHash);
    map["NAG_COMPUTED_HASH"] = Util::QStringToUtf8(hash.computedHash);
    const QString& internal = hash.internalHash;
    const QString& computed = hash.computedHash;
    if (internal.isEmpty() || computed.isEmpty())
        return;
    if (internal.size() != computed.size()) {
        map["NAG_HASH_ERROR"] = "NAG_INTERNAL_HASH and NAG_COMPUTED_HASH have different sizes";
        return;
    }
    if (!isBinary(internal)) {
        map["NAG_HASH_ERROR"] = "NAG_INTERNAL_HASH is not binary";
        return;
    }
    if (!isBinary(computed)) {
        map["NAG_HASH_ERROR"] = "NAG_COMPUTED_HASH is not binary";
        return;
    }
    int distance = 0;
    for (int i = 0; i < internal.size(); ++i)
        distance += internal.at(i) != computed.at(i) ? 1 : 0;
    const int length = internal.size();
    const int match = length - distance;
    map["NAG_HASH_MATCH"] = std::to_string(match) + "/" + std::to_string(length);
    // asprintf formats like "%f" in the C locale, whatever the user's locale.
    map["NAG_HASH_MATCH_PERCENT"] = Util::QStringToUtf8(QString::asprintf("%f", match * 100.0 / length));
}

std::string screenScale()
{
    const QScreen* screen = QGuiApplication::primaryScreen();
    return Util::QStringToUtf8(QString::number(screen ? screen->devicePixelRatio() : 1.0, 'f', 2));
}

// The operation in progress names the links clicked during it; restored on every way out.
class OperationScope
{
public:
    OperationScope(QString& current, const QString& name) : m_current(current), m_saved(current)
    {
        m_current = name;
    }
    ~OperationScope() { m_current = m_saved; }
    OperationScope(const OperationScope&) = delete;
    OperationScope& operator=(const OperationScope&) = delete;

private:
    QString& m_current;
    QString m_saved;
};

class NagScreenEventHandler : public IActionStrategy,
                              public IShowStrategy,
                              public INagLinksOpener,
                              public Core::ComponentSetterObserver
{
public:
    NagScreenEventHandler(const ITopManager& top, std::shared_ptr<Tracking::IApplicationTracker> tracker,
                          Core::NotNull<std::shared_ptr<IActionStrategy>> actions,
                          Core::NotNull<std::shared_ptr<IShowStrategy>> show,
                          Core::NotNull<std::shared_ptr<INagLinksOpener>> opener,
                          Core::NotNull<std::shared_ptr<ILinksManager>> links)
        : m_top(top), m_tracker(std::move(tracker)), m_actions(std::move(actions)), m_show(std::move(show)),
          m_opener(std::move(opener)), m_links(std::move(links))
    {
    }

    ~NagScreenEventHandler() override
    {
        if (m_hashSetter)
            m_hashSetter->UnregisterEventHandler(this);
    }

    // IShowStrategy
    int ShowNag(AbstractContent& content) override
    {
        m_content = content;
        const OperationScope operation(m_currentOperation, QStringLiteral("ShowNag"));
        struct ContentScope
        {
            boost::optional<AbstractContent&>& content;
            ~ContentScope() { content = boost::none; }
        } contentScope{m_content};

        if (m_tracker && content.State() == ContentState::Ready) {
            Params params;
            appendContentParams(params, content);
            ReadLink(params, content.SourceUrl().toString(), m_currentOperation);
            params["NAG_LOCALE"] = Util::QStringToUtf8(nagLocale(content));
            send("NAG_SHOW", params);
            if (const auto manager = m_top.get<IManager>()) {
                if (m_hashSetter)
                    m_hashSetter->UnregisterEventHandler(this);
                m_hashSetter = manager->GetNagHashSetter();
                if (m_hashSetter) {
                    if (m_hashSetter->IsSet())
                        onSet();
                    else
                        m_hashSetter->RegisterEventHandler(this);
                }
            }
        }
        const int result = m_show->ShowNag(content);
        if (m_tracker && content.State() == ContentState::Failed) {
            Params params;
            appendContentParams(params, content);
            send("NAG_FAILED", params);
        }
        return result;
    }

    // IActionStrategy
    void ShowBuyNow(const AbstractContent& content) override
    {
        const OperationScope operation(m_currentOperation, QStringLiteral("ShowBuyNow"));
        m_actions->ShowBuyNow(content);
    }

    void OpenLiveChat(const AbstractContent& content) override
    {
        const OperationScope operation(m_currentOperation, QStringLiteral("OpenLiveChat"));
        m_actions->OpenLiveChat(content);
    }

    void OpenUrl(const AbstractContent& content, const QUrl& url,
                 const QMap<QString, QVariant>& params) override
    {
        const OperationScope operation(m_currentOperation, QStringLiteral("OpenUrl"));
        m_actions->OpenUrl(content, url, params);
    }

    void OpenUrlKey(const AbstractContent& content, const QString& key,
                    const QMap<QString, QVariant>& params) override
    {
        const OperationScope operation(m_currentOperation, QStringLiteral("OpenUrlKey"));
        m_actions->OpenUrlKey(content, key, params);
    }

    void PerformButtonAction(const AbstractContent& content, const QString& buttonId,
                             const QVariant& value) override
    {
        track("NAG_BUTTON_CLICK", content, &value,
              [&](Params& event) { event["BUTTON_ID"] = Util::QStringToUtf8(buttonId); });
        const OperationScope operation(m_currentOperation, QStringLiteral("PerformButtonAction"));
        m_actions->PerformButtonAction(content, buttonId, value);
    }

    void NagDontShowClicked(const AbstractContent& content) override
    {
        const OperationScope operation(m_currentOperation, QStringLiteral("NagDontShowClicked"));
        m_actions->NagDontShowClicked(content);
    }

    void NagClose(const AbstractContent& content, int code, const QMap<QString, QVariant>& params) override
    {
        const QVariant values(params);
        track("NAG_CLOSE", content, &values,
              [&](Params& event) { event["NAG_EXIT"] = std::to_string(code); });
        const OperationScope operation(m_currentOperation, QStringLiteral("NagClose"));
        m_actions->NagClose(content, code, params);
    }

    void PerformCustomAction(const AbstractContent& content, const QString& action,
                             const QVariant& value) override
    {
        // An address or a survey answer is the user's own: it never goes to the tracker.
        const bool personal =
            action == QLatin1String("collectEmail") || action == QLatin1String("sendNPSInfo");
        track("CUSTOM_ACTION_PERFORMED", content, personal ? nullptr : &value,
              [&](Params& event) { event["NAG_CUSTOM_ACTION"] = Util::QStringToUtf8(action); });
        const OperationScope operation(m_currentOperation, QStringLiteral("PerformCustomAction"));
        m_actions->PerformCustomAction(content, action, value);
    }

    void ScreenShown(const AbstractContent& content, const QMap<QString, QVariant>& params) override
    {
        const QVariant values(params);
        track("NAG_SCREEN_SHOW", content, &values);
        const OperationScope operation(m_currentOperation, QStringLiteral("ScreenShown"));
        m_actions->ScreenShown(content, params);
    }

    // INagLinksOpener
    void OpenUrl(const AbstractContent& content, const QString& url,
                 const QMap<QString, QVariant>& params) override
    {
        const QVariant values(params);
        track("NAG_LINK_CLICK", content, &values, [&](Params& event) {
            FindLinkKey(event, url);
            ReadLink(event, url, m_currentOperation);
        });
        m_opener->OpenUrl(content, url, params);
    }

    void OpenUrl(const AbstractContent& content, URLKeys key, const QMap<QString, QVariant>& params) override
    {
        const QVariant values(params);
        track("NAG_LINK_CLICK", content, &values, [&](Params& event) {
            const auto name = UrlKeyNames.find(key);
            event["NAG_LINK_URL_KEY"] =
                name != UrlKeyNames.end() ? name->second : std::to_string(static_cast<int>(key));
            ReadLink(event, m_links->GetUrl(key), m_currentOperation);
        });
        m_opener->OpenUrl(content, key, params);
    }

    // ComponentSetterObserver
    void onSet() override
    {
        if (m_hashSetter)
            m_hashSetter->UnregisterEventHandler(this);
        // A hash that arrives after the nag has gone is dropped.
        if (!m_tracker || !m_content || !m_hashSetter)
            return;
        Params params;
        appendContentParams(params, *m_content);
        const std::shared_ptr<IManager::NagHash> hash = m_hashSetter->get();
        if (!hash)
            return;
        AppendHashParams(params, *hash);
        params["SCREEN_SCALE"] = screenScale();
        send("NAG_HASH", params);
    }

private:
    QString nagLocale(const AbstractContent& content) const
    {
        if (content.HasLocale())
            return content.Locale();
        const auto lookAndFeel = m_top.get<ILookAndFeelManager>();
        return lookAndFeel ? Util::Utf8ToQString(lookAndFeel->GetCurrentLocale()) : QString();
    }

    void send(const std::string& name, const Params& params) { m_tracker->sendEvent(name, params); }

    // One event of a nag's own: the values it passed (none when null) beneath the content's fields,
    // then the fields of this event.
    void track(const std::string& name, const AbstractContent& content, const QVariant* values,
               const std::function<void(Params&)>& fields = {})
    {
        if (!m_tracker)
            return;
        Params event;
        if (values)
            ReadParams(event, *values);
        appendContentParams(event, content);
        if (fields)
            fields(event);
        send(name, event);
    }

    const ITopManager& m_top;
    std::shared_ptr<Tracking::IApplicationTracker> m_tracker;
    Core::NotNull<std::shared_ptr<IActionStrategy>> m_actions;
    Core::NotNull<std::shared_ptr<IShowStrategy>> m_show;
    Core::NotNull<std::shared_ptr<INagLinksOpener>> m_opener;
    Core::NotNull<std::shared_ptr<ILinksManager>> m_links;
    boost::optional<AbstractContent&> m_content;
    QString m_currentOperation;
    std::shared_ptr<IManager::NagHashSetter> m_hashSetter;
};

} // namespace

void setupNagScreenEventHandler(const ITopManager& top,
                                const std::shared_ptr<Tracking::IApplicationTracker>& tracker)
{
    const auto manager = requiredComponent<IManager>(top, "setupNagScreenEventHandler");
    if (!manager)
        throw std::logic_error("setupNagScreenEventHandler: the application has no nag manager");
    const auto actions = std::dynamic_pointer_cast<DefaultActions>(manager->GetActionStrategy());
    if (!actions)
        throw std::logic_error(
            "setupNagScreenEventHandler: the nag manager's action strategy is not DefaultActions");

    const auto handler = std::make_shared<NagScreenEventHandler>(
        top, tracker, manager->GetActionStrategy(), manager->GetShowStrategy(), actions->GetLinksOpener(),
        actions->GetLinksManager());
    manager->SetActionStrategy(handler);
    manager->SetShowStrategy(handler);
    actions->SetLinksOpener(handler);
}

} // namespace Ostrel::App::NagScreen
