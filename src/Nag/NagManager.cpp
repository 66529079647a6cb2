#include "Nag/NagManager.h"

#include "Foundation/PersonalDataMask.h"
#include "Foundation/Utf8.h"
#include "Interfaces/IProductSettingsManager.h"
#include "Nag/AbstractContent.h"
#include "Nag/ContentFactory.h"
#include "Nag/DefaultNagsSettings.h"
#include "Nag/IManagerObserver.h"
#include "Nag/INagIdLockStorage.h"
#include "Nag/IShowStrategy.h"
#include "Nag/IWebNagUrlGenerator.h"

#include <glog/logging.h>

#include <QEventLoop>
#include <QFileInfo>
#include <QTimer>

#include <algorithm>
#include <vector>

namespace Ostrel::App::NagScreen {

namespace {

// A local nag is showable only if its main.qml is there; a web nag can't be checked before asking.
bool sourceExists(const NagRecord& record)
{
    if (record.implementation == Implementation::Web)
        return !record.source.isEmpty();
    const QUrl url(record.source, QUrl::TolerantMode);
    if (url.scheme() == QLatin1String("qrc"))
        return QFileInfo::exists(QLatin1Char(':') + url.path());
    if (url.isLocalFile())
        return QFileInfo::exists(url.toLocalFile());
    return QFileInfo::exists(record.source);
}

} // namespace

class NagManager::Impl : public std::enable_shared_from_this<NagManager::Impl>
{
public:
    std::shared_ptr<IProductSettingsManager> settings;
    QString mapPath;
    std::shared_ptr<const NagConfig> config;
    QString mode = AppMode::Free();
    QString module;
    std::function<QString()> locale;
    std::shared_ptr<IWebNagUrlGenerator> urlGenerator;
    std::shared_ptr<INagIdLockStorage> nagIdLocks;
    std::shared_ptr<WebConfig::INagsSettings> nagsSettings =
        std::make_shared<WebConfig::DefaultNagsSettings>();
    int webTimeoutMs = 15000;
    NagAccessRules accessRules;
    std::vector<IManagerObserver*> observers;
    QMap<QString, QString> overrides;
    std::shared_ptr<IShowStrategy> showStrategy;
    std::shared_ptr<IActionStrategy> actionStrategy;
    std::shared_ptr<NagHashSetter> hashSetter = std::make_shared<NagHashSetter>();
    // The setter holds the hash weakly: the shown nag's lives here, and dropping it when the next
    // show starts clears the setter, so that nobody reads a previous nag's fingerprint as its own.
    std::shared_ptr<NagHash> lastHash;
    QObject context; // receiver of the manager's own timers, gone with the manager

    ContentEnvironment environment()
    {
        ContentEnvironment env;
        const std::weak_ptr<Impl> weak = shared_from_this();
        env.actionStrategy = [weak]() {
            const auto self = weak.lock();
            return self ? self->actionStrategy : nullptr;
        };
        env.locale = [weak]() {
            const auto self = weak.lock();
            return self && self->locale ? self->locale() : QString();
        };
        env.urlGenerator = urlGenerator;
        env.webTimeoutMs = webTimeoutMs;
        env.access = accessRules;
        env.dontShow = [weak](const AbstractContent& content) {
            if (const auto self = weak.lock())
                self->rememberDontShow(content);
        };
        return env;
    }

    std::shared_ptr<ContentFactory> factory()
    {
        const std::weak_ptr<Impl> weak = shared_from_this();
        return std::make_shared<ContentFactory>(
            [weak]() {
                const auto self = weak.lock();
                return self ? self->config : nullptr;
            },
            environment());
    }

    std::string dontShowKey(const QString& action, const QString& nagMode, const QString& id) const
    {
        return Util::QStringToUtf8(QStringLiteral("dontShowNag_") + action + QLatin1Char('_') + nagMode +
                                   QLatin1Char('/') + id);
    }

    void rememberDontShow(const AbstractContent& content)
    {
        if (!settings || content.GetContext().preview || content.Id().isEmpty())
            return;
        settings->SetBool(dontShowKey(content.AppAction(), content.AppMode(), content.Id()), true);
        const auto copy = observers;
        for (IManagerObserver* observer : copy)
            observer->onNagDontShow(content.AppAction(), true);
    }

    bool prohibitedToDisable(const QString& action) const
    {
        const auto list = nagsSettings ? nagsSettings->nagsProhibitedToDisable() : std::vector<std::string>();
        return std::find(list.begin(), list.end(), Util::QStringToUtf8(action)) != list.end();
    }

    bool disabled(const QString& action) const
    {
        const std::optional<NagRecord> record = config ? config->Find(mode, action) : std::nullopt;
        if (!record)
            return false;
        if (record->disabled)
            return true;
        if (!settings || record->id.isEmpty() || prohibitedToDisable(action))
            return false;
        // The user's choice was stored under the mode the nag was shown in, which may be any_mode.
        for (const QString& nagMode : {mode, AppMode::AnyMode()}) {
            if (settings->GetBool(dontShowKey(action, nagMode, record->id), false))
                return true;
        }
        return false;
    }

    bool available(const QString& action) const
    {
        if (overrides.contains(action))
            return true;
        const std::optional<NagRecord> record = config ? config->Find(mode, action) : std::nullopt;
        if (!record || disabled(action))
            return false;
        if (!module.isEmpty() && !record->modules.isEmpty() && !record->modules.contains(module))
            return false;
        return sourceExists(*record);
    }

    void load()
    {
        std::optional<NagConfig> loaded = NagConfig::fromFile(mapPath);
        if (loaded)
            config = std::make_shared<const NagConfig>(std::move(*loaded));
        else if (!config)
            LOG(ERROR) << "No nag map: no nag will be shown until one is added";
    }

    void storeHash(const AbstractContent& content)
    {
        if (!nagsSettings || !nagsSettings->sendNagHashEvent() || content.HashName().isEmpty())
            return;
        auto hash = std::make_shared<NagHash>();
        hash->hashName = content.HashName();
        hash->hashSize = content.HashSize();
        hash->internalHash = content.DeclaredHash();
        hash->computedHash = content.ComputedHash();
        lastHash = hash;
        hashSetter->set(hash);
    }
};

NagManager::NagManager(const std::shared_ptr<IProductSettingsManager>& settings, QString mapPath)
    : d(std::make_shared<Impl>())
{
    d->settings = settings;
    d->mapPath = std::move(mapPath);
    d->load();
}

NagManager::~NagManager() = default;

void NagManager::SetAppMode(const QString& mode)
{
    d->mode = mode;
}

void NagManager::SetModuleName(const QString& module)
{
    d->module = module;
}

void NagManager::SetLocaleProvider(std::function<QString()> locale)
{
    d->locale = std::move(locale);
}

void NagManager::SetWebNagUrlGenerator(const std::shared_ptr<IWebNagUrlGenerator>& generator)
{
    d->urlGenerator = generator;
}

void NagManager::SetNagIdLockStorage(const std::shared_ptr<INagIdLockStorage>& storage)
{
    d->nagIdLocks = storage;
}

void NagManager::SetNagsSettings(const std::shared_ptr<WebConfig::INagsSettings>& settings)
{
    d->nagsSettings = settings;
}

std::shared_ptr<WebConfig::INagsSettings> NagManager::GetNagsSettings() const
{
    return d->nagsSettings;
}

void NagManager::SetWebTimeout(int milliseconds)
{
    d->webTimeoutMs = milliseconds;
}

void NagManager::SetAccessRules(const NagAccessRules& rules)
{
    d->accessRules = rules;
}

void NagManager::AddObserver(IManagerObserver* observer)
{
    if (observer && std::find(d->observers.begin(), d->observers.end(), observer) == d->observers.end())
        d->observers.push_back(observer);
}

void NagManager::RemoveObserver(IManagerObserver* observer)
{
    d->observers.erase(std::remove(d->observers.begin(), d->observers.end(), observer), d->observers.end());
}

void NagManager::AddNag(const QString& mode, const QString& action, const QUrl& url, const std::string& nagId,
                        const std::string& nagName, int)
{
    if (action.isEmpty() || !url.isValid() || url.isEmpty()) {
        LOG(WARNING) << "A nag without action or valid address was not added: action \""
                     << Util::QStringToUtf8(action) << "\", address \""
                     << Util::QStringToUtf8(Core::PersonalDataMask::mask(url.toString())) << "\"";
        return;
    }
    NagRecord record;
    record.action = action;
    const QString scheme = url.scheme();
    record.implementation = scheme == QLatin1String("http") || scheme == QLatin1String("https")
                                ? Implementation::Web
                                : Implementation::Local;
    record.source = url.toString();
    record.id = Util::Utf8ToQString(nagId);
    record.name = Util::Utf8ToQString(nagName);
    NagConfig config = d->config ? *d->config : NagConfig();
    config.Add(mode, record);
    d->config = std::make_shared<const NagConfig>(std::move(config));
}

void NagManager::ReloadNags(const std::string& reason)
{
    LOG(INFO) << "Reloading nags, reason: " << reason;
    const std::weak_ptr<Impl> weak = d;
    QTimer::singleShot(0, &d->context, [weak]() {
        const auto self = weak.lock();
        if (!self)
            return;
        self->load();
        const QStringList actions = self->config ? self->config->ActionsIn(self->mode) : QStringList();
        const auto observers = self->observers;
        for (const QString& action : actions) {
            const bool available = self->available(action);
            const bool disabled = self->disabled(action);
            for (IManagerObserver* observer : observers) {
                observer->onNagAvailable(action, available);
                observer->onNagDontShow(action, disabled);
            }
        }
        for (IManagerObserver* observer : observers)
            observer->onNagsReloaded();
    });
}

void NagManager::OverrideNagPath(const QString& action, const QString& path)
{
    if (path.isEmpty())
        d->overrides.remove(action);
    else
        d->overrides.insert(action, path);
}

bool NagManager::IsNagAvailable(const QString& action)
{
    return d->available(action);
}

bool NagManager::IsNagDisabled(const QString& action)
{
    return d->disabled(action);
}

int NagManager::ShowNag(const QString& action)
{
    // Held for the whole call: a strategy or a nag may replace the manager's fields meanwhile.
    const auto self = d;
    self->lastHash.reset();
    const auto strategy = self->showStrategy;
    if (!strategy) {
        LOG(ERROR) << "No show strategy is set; the nag of " << Util::QStringToUtf8(action)
                   << " is not shown";
        return -1;
    }
    const bool overridden = self->overrides.contains(action);
    if (!overridden && !self->available(action)) {
        LOG(INFO) << "No nag to show for action " << Util::QStringToUtf8(action) << " in mode "
                  << Util::QStringToUtf8(self->mode);
        return -1;
    }
    const std::optional<NagRecord> record =
        self->config ? self->config->Find(self->mode, action) : std::nullopt;
    const Implementation implementation =
        overridden || !record ? Implementation::Local : record->implementation;
    const std::unique_ptr<AbstractContent> content = self->factory()->Create(
        implementation, NagContext{action, record ? self->mode : AppMode::AnyMode(), 0});
    if (!content)
        return -1;

    if (overridden)
        content->LoadFromPath(self->overrides.value(action));
    else
        content->Load();
    if (content->State() == ContentState::Loading) {
        QEventLoop loop;
        QObject::connect(content.get(), &AbstractContent::StateChanged, &loop, &QEventLoop::quit);
        loop.exec();
    }
    if (content->State() != ContentState::Ready) {
        LOG(ERROR) << "The nag of " << Util::QStringToUtf8(action) << " did not load; nothing is shown";
        return -1;
    }
    const std::weak_ptr<Impl> weak = self;
    // The fingerprint is the first frame's: later frames (an animation, a hover) are not what the
    // nag was published as.
    const auto firstFrame = std::make_shared<QMetaObject::Connection>();
    *firstFrame = QObject::connect(content.get(), &AbstractContent::Rendered, content.get(),
                                   [weak, raw = content.get(), firstFrame]() {
                                       QObject::disconnect(*firstFrame);
                                       if (const auto alive = weak.lock())
                                           alive->storeHash(*raw);
                                   });
    // A web nag's id is the server's promise: locked while it is on its way to the screen, so that
    // a show cut short (a failure, the program ending) makes the next request ask for it again.
    const auto locks = self->nagIdLocks;
    const std::string promised = locks ? Util::QStringToUtf8(content->ReportedId()) : std::string();
    const std::string lockAction = Util::QStringToUtf8(content->AppAction());
    const std::string lockMode = Util::QStringToUtf8(content->AppMode());
    if (!promised.empty())
        locks->lockNagId(lockAction, lockMode, promised);

    LOG(INFO) << "Showing the nag " << Util::QStringToUtf8(content->Id()) << " for "
              << Util::QStringToUtf8(action);
    const int code = strategy->ShowNag(*content);
    LOG(INFO) << "The nag of " << Util::QStringToUtf8(action) << " ended with " << code;

    // Seen: the promise is kept. The lock goes only while it still names this nag.
    if (!promised.empty() && code != -1 && content->State() != ContentState::Failed &&
        locks->getLockedNagId(lockAction, lockMode) == promised)
        locks->cleanupNagId(lockAction, lockMode, std::string());
    return code;
}

std::shared_ptr<IManager::NagHashSetter> NagManager::GetNagHashSetter()
{
    return d->hashSetter;
}

void NagManager::SetShowStrategy(const std::shared_ptr<IShowStrategy>& strategy)
{
    d->showStrategy = strategy;
}

std::shared_ptr<IShowStrategy> NagManager::GetShowStrategy() const
{
    return d->showStrategy;
}

void NagManager::SetActionStrategy(const std::shared_ptr<IActionStrategy>& strategy)
{
    d->actionStrategy = strategy;
}

std::shared_ptr<IActionStrategy> NagManager::GetActionStrategy() const
{
    return d->actionStrategy;
}

std::shared_ptr<const NagConfig> NagManager::GetNagConfig() const
{
    return d->config;
}

QString NagManager::GetAppMode() const
{
    return d->mode;
}

std::shared_ptr<IContentFactory> NagManager::GetContentFactory() const
{
    return d->factory();
}

} // namespace Ostrel::App::NagScreen
