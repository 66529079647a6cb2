#pragma once

#include "Events/ComponentSetter.h"
#include "Nag/IContentFactory.h"
#include "Nag/NagConfig.h"

#include <QSize>
#include <QString>
#include <QUrl>

#include <memory>
#include <string>

namespace Ostrel::App::NagScreen {

class IActionStrategy;
class IManagerObserver;
class IShowStrategy;

/// The nag manager: which nag exists for which moment, and showing it. One for the process, set on
/// the application as a component.
class IManager
{
public:
    /// The rendering fingerprint of the last nag shown.
    struct NagHash
    {
        QString hashName;
        QSize hashSize;
        QString internalHash;
        QString computedHash;
    };
    using NagHashSetter = Core::ComponentSetter<NagHash>;

    virtual ~IManager() = default;

    virtual void AddObserver(IManagerObserver* observer) = 0;
    /// Adds (or replaces) the nag of `action` in `mode` from `url`: an "http(s):" address is a web
    /// nag, anything else a local main.qml. `nagId` and `nagName` name it for tracking; `flags` is
    /// kept for the nag server's use and is 0 from the product itself.
    virtual void AddNag(const QString& mode, const QString& action, const QUrl& url, const std::string& nagId,
                        const std::string& nagName, int flags) = 0;
    /// Reloads the nag map; observers hear onNagAvailable per action afterwards, from the event loop.
    virtual void ReloadNags(const std::string& reason) = 0;
    /// Shows the main.qml at `path` for `action` from now on; an empty path ends the override.
    virtual void OverrideNagPath(const QString& action, const QString& path) = 0;
    virtual bool IsNagAvailable(const QString& action) = 0;
    virtual bool IsNagDisabled(const QString& action) = 0;
    /// Shows the nag of `action` in the current mode and returns its exit code; -1 when no nag was
    /// shown (none, switched off, failed to load, or no show strategy).
    virtual int ShowNag(const QString& action) = 0;
    virtual std::shared_ptr<NagHashSetter> GetNagHashSetter() = 0;
    virtual void SetShowStrategy(const std::shared_ptr<IShowStrategy>& strategy) = 0;
    virtual std::shared_ptr<IShowStrategy> GetShowStrategy() const = 0;
    virtual void SetActionStrategy(const std::shared_ptr<IActionStrategy>& strategy) = 0;
    virtual std::shared_ptr<IActionStrategy> GetActionStrategy() const = 0;
    /// Null while no map could be read.
    virtual std::shared_ptr<const NagConfig> GetNagConfig() const = 0;
    virtual QString GetAppMode() const = 0;
    virtual std::shared_ptr<IContentFactory> GetContentFactory() const = 0;
    virtual void RemoveObserver(IManagerObserver* observer) = 0;
};

} // namespace Ostrel::App::NagScreen
