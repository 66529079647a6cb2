#include "App/Application/PreferredBrowser.h"

#include "App/Application/ProductConstants.h"
#include "App/Application/SystemBrowserSources.h"
#include "App/Application/URLHandler.h"
#include "Foundation/Utf8.h"
#include "Interfaces/IInstallerSettingsManager.h"
#include "Interfaces/ILookAndFeelManager.h"
#include "Interfaces/IProductSettingsManager.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QPointer>

#include <set>

namespace Ostrel::App {

namespace {

const QString& muiCacheKey()
{
    static const QString key = QStringLiteral("HKEY_CURRENT_USER\\Software\\Classes\\Local "
                                              "Settings\\Software\\Microsoft\\Windows\\Shell\\MuiCache");
    return key;
}

// Value names there are executables with a suffix behind the ".exe" (".FriendlyAppName").
QString searchMuiCache(const IBrowserSources& sources, const QString& name)
{
    if (name.isEmpty())
        return QString();
    const QString exe = QStringLiteral(".exe");
    std::set<QString> paths;
    for (const QString& value : sources.valueNames(muiCacheKey())) {
        const int at = value.lastIndexOf(exe);
        if (at >= 0)
            paths.insert(value.left(at) + exe);
    }
    // The name is not folded: the installer writes it in lower case.
    for (const QString& path : paths) {
        const QFileInfo info(path);
        if (info.fileName().toLower() == name && info.exists())
            return QFile::exists(path) ? path : QString();
    }
    return QString();
}

QString searchRegisteredBrowsers(const IBrowserSources& sources, const QString& name)
{
    for (const char* root : {"HKEY_CURRENT_USER", "HKEY_LOCAL_MACHINE"}) {
        const QString clients =
            QString::fromLatin1(root) + QStringLiteral("\\SOFTWARE\\Clients\\StartMenuInternet");
        for (const QString& subkey : sources.subkeys(clients)) {
            QString command = sources.defaultValue(clients + QLatin1Char('\\') + subkey +
                                                   QStringLiteral("\\shell\\open\\command"));
            // A command with arguments behind the path is no file and falls out here.
            command = QDir::toNativeSeparators(command.remove(QLatin1Char('"')));
            if (command.isEmpty() || !QFile::exists(command))
                continue;
            if (QFileInfo(command).baseName().toLower() + QStringLiteral(".exe") == name.toLower())
                return command;
        }
    }
    return QString();
}

} // namespace

class PreferredBrowser::Impl
{
public:
    // The handler's parent is the application, which may be gone first at the end of a run.
    ~Impl() { delete urlHandler; }

    std::shared_ptr<IBrowserSources> sources;
    QPointer<URLHandler> urlHandler;
};

PreferredBrowser::PreferredBrowser(const std::shared_ptr<ILookAndFeelManager>& lookAndFeel,
                                   const std::shared_ptr<IProductSettingsManager>& productSettings,
                                   const std::shared_ptr<IInstallerSettingsManager>& installerSettings)
    : PreferredBrowser(productSettings)
{
    d->urlHandler = new URLHandler(QCoreApplication::instance(), *this);
    SetContextCallback([lookAndFeel, productSettings, installerSettings]() {
        PreferredBrowserContext context;
        if (lookAndFeel)
            context.locale = Util::Utf8ToQString(lookAndFeel->GetCurrentLocale());
        if (installerSettings)
            context.name =
                Util::Utf8ToQString(installerSettings->GetString(ProductConstants::Browser, std::string()));
        if (productSettings)
            context.path = Util::Utf8ToQString(productSettings->GetString("PreferredBrowser", std::string()));
        return context;
    });
}

PreferredBrowser::PreferredBrowser(const std::shared_ptr<IProductSettingsManager>& productSettings)
    : PreferredBrowser(productSettings, std::make_shared<SystemBrowserSources>())
{
}

PreferredBrowser::PreferredBrowser(const std::shared_ptr<IProductSettingsManager>& productSettings,
                                   std::shared_ptr<IBrowserSources> sources)
    : AbstractPreferredBrowser(productSettings), d(std::make_unique<Impl>())
{
    d->sources = std::move(sources);
}

PreferredBrowser::~PreferredBrowser() = default;

QString PreferredBrowser::FindPath(const PreferredBrowserContext& context)
{
    const QString& name = context.name;
    const auto processes = d->sources->processMap();
    if (name.isEmpty() && !processes.empty())
        return QString();
    // The browser that is running wins over all else.
    const auto running = processes.find(name);
    if (running != processes.end() && QFile::exists(running->second))
        return running->second;
    QString found = searchMuiCache(*d->sources, name);
    if (found.isEmpty())
        found = searchRegisteredBrowsers(*d->sources, name);
    return QDir::toNativeSeparators(found);
}

} // namespace Ostrel::App
