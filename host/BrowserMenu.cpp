#include "BrowserMenu.h"

#include "App/Application/PreferredBrowser.h"
#include "App/Application/SystemBrowserSources.h"
#include "Foundation/Utf8.h"
#include "Interfaces/IProductSettingsManager.h"

#include <QAction>
#include <QActionGroup>
#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QMenu>

#include <vector>

using namespace Ostrel;
using namespace Ostrel::App;

namespace {

const char* const PreferredBrowserKey = "PreferredBrowser";

struct FoundBrowser
{
    QString name;
    QString path;
};

// The browsers of the user first, then of the system, each program once.
std::vector<FoundBrowser> foundBrowsers()
{
    const SystemBrowserSources sources;
    std::vector<FoundBrowser> found;
    for (const QString root : {QStringLiteral("HKEY_CURRENT_USER\\SOFTWARE\\Clients\\StartMenuInternet"),
                               QStringLiteral("HKEY_LOCAL_MACHINE\\SOFTWARE\\Clients\\StartMenuInternet")}) {
        for (const QString& id : sources.subkeys(root)) {
            const QString path = sources.defaultValue(root + QLatin1Char('\\') + id +
                                                      QStringLiteral("\\shell\\open\\command"));
            bool known = path.isEmpty();
            for (const FoundBrowser& browser : found)
                known = known || browser.path == path;
            if (!known)
                found.push_back({QFileInfo(id).completeBaseName(), path});
        }
    }
    return found;
}

} // namespace

void addBrowserMenu(QMenu& options, PreferredBrowser& browser,
                    const std::shared_ptr<IProductSettingsManager>& settings)
{
    QMenu* menu = options.addMenu(QString());
    menu->setObjectName(QStringLiteral("browserMenu"));
    const auto retitle = [menu]() { menu->setTitle(QCoreApplication::translate("OptionsMenu", "&Browser")); };
    retitle();
    const auto fill = [menu, &browser, settings, retitle]() {
        retitle();
        menu->clear();
        auto* group = new QActionGroup(menu);
        const QString chosen =
            settings ? Util::Utf8ToQString(settings->GetString(PreferredBrowserKey, std::string()))
                     : QString();
        const auto add = [&](const QString& text, const QString& path) {
            QAction* action = menu->addAction(text);
            action->setCheckable(true);
            action->setChecked(path == chosen);
            action->setToolTip(path);
            group->addAction(action);
            QObject::connect(action, &QAction::triggered, menu, [&browser, settings, path]() {
                if (settings)
                    settings->SetString(PreferredBrowserKey, Util::QStringToUtf8(path));
                // No installer name: the chosen path is taken as it stands (the default searches).
                browser.Init({QString(), QString(), path});
            });
        };
        add(QCoreApplication::translate("OptionsMenu", "Desktop default"), QString());
        menu->addSeparator();
        for (const FoundBrowser& found : foundBrowsers())
            add(QStringLiteral("%1 (%2)").arg(found.name, QDir::toNativeSeparators(found.path)), found.path);
    };
    fill();
    QObject::connect(menu, &QMenu::aboutToShow, menu, fill);
}
