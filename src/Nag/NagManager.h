#pragma once

#include "Nag/IManager.h"
#include "Nag/NagAccessRules.h"
#include "Nag/ostrel_nag_export.h"

#include <functional>

namespace Ostrel::App {
class IProductSettingsManager;
}
namespace Ostrel::App::WebConfig {
class INagsSettings;
}

namespace Ostrel::App::NagScreen {

class INagIdLockStorage;
class IWebNagUrlGenerator;

/// The product's nag manager over a nag map file (by default the built-in map of the resources).
///
/// A nag is switched off when its row says "disabled", or when the user asked not to see it again:
/// the product setting "dontShowNag_<action>_<mode>/<nag id>" is true. Actions listed in the nag
/// settings' nagsProhibitedToDisable ignore the user's choice (never the configuration's).
class OSTREL_NAG_EXPORT NagManager : public IManager
{
public:
    /// `settings` keeps the user's choices and may be null (nothing is remembered then).
    explicit NagManager(const std::shared_ptr<IProductSettingsManager>& settings,
                        QString mapPath = QStringLiteral(":/NagScreen/nagMap.json"));
    ~NagManager() override;
    NagManager(const NagManager&) = delete;
    NagManager& operator=(const NagManager&) = delete;

    /// "free" until told otherwise.
    void SetAppMode(const QString& mode);
    /// Nags with a module list show only for this module; empty accepts every nag.
    void SetModuleName(const QString& module);
    /// The application's locale as nags should read it ("en_US" without one).
    void SetLocaleProvider(std::function<QString()> locale);
    void SetWebNagUrlGenerator(const std::shared_ptr<IWebNagUrlGenerator>& generator);
    /// Where the id a shown web nag reports is locked until it has been on screen, so that the
    /// server repeats a promised nag that was cut short; give the generator the same storage so
    /// that its requests carry the lock. Without one nothing is locked.
    void SetNagIdLockStorage(const std::shared_ptr<INagIdLockStorage>& storage);
    void SetNagsSettings(const std::shared_ptr<WebConfig::INagsSettings>& settings);
    std::shared_ptr<WebConfig::INagsSettings> GetNagsSettings() const;
    void SetWebTimeout(int milliseconds);
    /// Where the QML of nags made from now on may reach besides "qrc:" (see NagAccessRules).
    void SetAccessRules(const NagAccessRules& rules);

    void AddObserver(IManagerObserver* observer) override;
    void RemoveObserver(IManagerObserver* observer) override;
    void AddNag(const QString& mode, const QString& action, const QUrl& url, const std::string& nagId,
                const std::string& nagName, int flags) override;
    void ReloadNags(const std::string& reason) override;
    void OverrideNagPath(const QString& action, const QString& path) override;
    bool IsNagAvailable(const QString& action) override;
    bool IsNagDisabled(const QString& action) override;
    int ShowNag(const QString& action) override;
    std::shared_ptr<NagHashSetter> GetNagHashSetter() override;
    void SetShowStrategy(const std::shared_ptr<IShowStrategy>& strategy) override;
    std::shared_ptr<IShowStrategy> GetShowStrategy() const override;
    void SetActionStrategy(const std::shared_ptr<IActionStrategy>& strategy) override;
    std::shared_ptr<IActionStrategy> GetActionStrategy() const override;
    std::shared_ptr<const NagConfig> GetNagConfig() const override;
    QString GetAppMode() const override;
    std::shared_ptr<IContentFactory> GetContentFactory() const override;

private:
    class Impl;
    std::shared_ptr<Impl> d;
};

} // namespace Ostrel::App::NagScreen
