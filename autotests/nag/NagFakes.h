#pragma once

// Stand-ins for the nag library and the links, for the tests of the actions, the tracking
// decorator and the tester: only what those read is there.

#include "Foundation/Utf8.h"
#include "Interfaces/ILinksManager.h"
#include "Nag/AbstractContent.h"
#include "Nag/ContentParams.h"
#include "Nag/IManager.h"
#include "Nag/IManagerObserver.h"
#include "Nag/INagLinksOpener.h"
#include "Nag/IShowStrategy.h"

#include <QPixmap>

#include <functional>
#include <memory>
#include <set>
#include <vector>

namespace Ostrel::Test {

class FakeContent : public App::NagScreen::AbstractContent
{
public:
    explicit FakeContent(const QString& action = QStringLiteral("app_start"),
                         const QString& mode = QStringLiteral("free"))
        : AbstractContent(App::NagScreen::NagContext{action, mode}, App::NagScreen::ContentEnvironment())
    {
        setState(App::NagScreen::ContentState::Ready);
    }
    void changeState(App::NagScreen::ContentState state) { setState(state); }

    QUrl source = QUrl(QStringLiteral("qrc:/fake/main.qml"));
    QString id = QStringLiteral("nag_7");
    QString locale;
    QMap<QString, QString> dimming;

    QUrl SourceUrl() const override { return source; }
    QString Id() const override { return id; }
    QString Name() const override { return QStringLiteral("Fake nag"); }
    QUrl LocalUrl() const override { return source; }
    QString DimmingName() const override { return {}; }
    const QMap<QString, QString>& DimmingParameters() const override { return dimming; }
    QString Locale() const override { return locale; }
    bool HasLocale() const override { return !locale.isEmpty(); }
    void Load() override {}
    void LoadFromPath(const QString&) override {}
    QString Type() const override { return QStringLiteral("local"); }
    QString DeclaredHash() const override { return {}; }
    QString ComputedHash() const override { return {}; }
    QString HashName() const override { return {}; }
    QSize HashSize() const override { return {}; }
    QPixmap Picture() const override { return {}; }
};

/// Links from the built-in templates, with "-TAIL_WITH_ARGS-" as "app=probe" and given macros
/// replaced; opened links are kept.
class FakeLinksManager : public App::ILinksManager
{
public:
    QString GetUrl(const QString& key) const override
    {
        const auto found = App::UrlTemplates.find(Util::QStringToUtf8(key));
        return found == App::UrlTemplates.end() ? QString()
                                                : GenerateUrl(Util::Utf8ToQString(found->second), {});
    }
    QString GetUrl(App::URLKeys key) const override
    {
        const auto name = App::UrlKeyNames.find(key);
        return name == App::UrlKeyNames.end() ? QString() : GetUrl(Util::Utf8ToQString(name->second));
    }
    QString GenerateUrl(const QString& url, QMap<QString, QString> parameters) const override
    {
        QString result = url;
        result.replace(QStringLiteral("-TAIL_WITH_ARGS-"), QStringLiteral("app=probe"));
        for (auto it = parameters.cbegin(); it != parameters.cend(); ++it)
            result.replace(it.key(), it.value());
        return result;
    }
    void OpenUrl(const QString& url) const override { opened.push_back(url); }
    void OpenUrl(App::URLKeys key) const override { opened.push_back(GetUrl(key)); }

    mutable std::vector<QString> opened;
};

/// Keeps the links a nag asked to open.
class RecordingNagOpener : public App::NagScreen::INagLinksOpener
{
public:
    void OpenUrl(const App::NagScreen::AbstractContent&, const QString& url,
                 const QMap<QString, QVariant>&) override
    {
        opened.push_back(url);
    }
    void OpenUrl(const App::NagScreen::AbstractContent&, App::URLKeys key,
                 const QMap<QString, QVariant>&) override
    {
        opened.push_back(QStringLiteral("key:%1").arg(static_cast<int>(key)));
    }
    std::vector<QString> opened;
};

/// Shows by running `show` and returning its code.
class FakeShowStrategy : public App::NagScreen::IShowStrategy
{
public:
    std::function<int(App::NagScreen::AbstractContent&)> show;
    int ShowNag(App::NagScreen::AbstractContent& content) override { return show ? show(content) : 1; }
};

class FakeManager : public App::NagScreen::IManager
{
public:
    void AddObserver(App::NagScreen::IManagerObserver* observer) override { observers.insert(observer); }
    void RemoveObserver(App::NagScreen::IManagerObserver* observer) override { observers.erase(observer); }
    void AddNag(const QString&, const QString&, const QUrl&, const std::string&, const std::string&,
                int) override
    {
    }
    void ReloadNags(const std::string& reason) override { reloads.push_back(reason); }
    void OverrideNagPath(const QString& action, const QString& path) override { overridden[action] = path; }
    bool IsNagAvailable(const QString& action) override { return available.count(action) != 0; }
    bool IsNagDisabled(const QString& action) override { return disabled.count(action) != 0; }
    int ShowNag(const QString& action) override
    {
        shown.push_back(action);
        return onShow ? onShow(action) : -1;
    }
    std::shared_ptr<NagHashSetter> GetNagHashSetter() override { return hashSetter; }
    void SetShowStrategy(const std::shared_ptr<App::NagScreen::IShowStrategy>& strategy) override
    {
        showStrategy = strategy;
    }
    std::shared_ptr<App::NagScreen::IShowStrategy> GetShowStrategy() const override { return showStrategy; }
    void SetActionStrategy(const std::shared_ptr<App::NagScreen::IActionStrategy>& strategy) override
    {
        actions = strategy;
    }
    std::shared_ptr<App::NagScreen::IActionStrategy> GetActionStrategy() const override { return actions; }
    std::shared_ptr<const App::NagScreen::NagConfig> GetNagConfig() const override { return config; }
    QString GetAppMode() const override { return QStringLiteral("free"); }
    std::shared_ptr<App::NagScreen::IContentFactory> GetContentFactory() const override { return nullptr; }

    /// Stores `hash` as the last nag's fingerprint (kept alive here, as the real manager does).
    void setHash(const NagHash& hash)
    {
        lastHash = std::make_shared<NagHash>(hash);
        hashSetter->set(lastHash);
    }

    std::set<App::NagScreen::IManagerObserver*> observers;
    std::vector<std::string> reloads;
    std::map<QString, QString> overridden;
    std::set<QString> available;
    std::set<QString> disabled;
    std::vector<QString> shown;
    std::function<int(const QString&)> onShow;
    std::shared_ptr<NagHashSetter> hashSetter = std::make_shared<NagHashSetter>();
    std::shared_ptr<NagHash> lastHash;
    std::shared_ptr<App::NagScreen::IShowStrategy> showStrategy;
    std::shared_ptr<App::NagScreen::IActionStrategy> actions;
    std::shared_ptr<const App::NagScreen::NagConfig> config;
};

} // namespace Ostrel::Test
