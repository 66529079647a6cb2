#include "App/Application/LifetimeManager.h"

#include "App/Application/OnStartHandler_p.h"
#include "Events/EventHandlerList.h"
#include "Foundation/Utf8.h"
#include "QtUtil/AlertBox.h"

#include <QApplication>
#include <QPixmap>
#include <QProcess>

#include <glog/logging.h>

#include <list>

namespace Ostrel::App {

class LifetimeManager::Impl
{
public:
    Core::EventHandlerList<ILifetimeObserver> observers;
    std::list<OnStartHandler> onStartHandlers;
    bool started = false;
    bool quitting = false;
};

LifetimeManager::LifetimeManager() : d(std::make_unique<Impl>()) {}

// Remaining one-shot handlers go first, then the observer list; nobody is told.
LifetimeManager::~LifetimeManager() = default;

void LifetimeManager::RegisterEventHandler(ILifetimeObserver* observer)
{
    d->observers.RegisterEventHandler(observer);
}

void LifetimeManager::UnregisterEventHandler(ILifetimeObserver* observer)
{
    d->observers.UnregisterEventHandler(observer);
}

void LifetimeManager::start()
{
    if (d->started)
        return;
    d->started = true;
    d->observers.Notify(&ILifetimeObserver::onStart);

    // A callback added during the notification was not in its copy of the list: it goes here
    // without having run, which is what "one-shot, before the start" means.
    for (OnStartHandler& handler : d->onStartHandlers)
        d->observers.UnregisterEventHandler(&handler);
    d->onStartHandlers.clear();
}

bool LifetimeManager::isStarted() const
{
    return d->started;
}

bool LifetimeManager::tryToRestart(WorkingMode mode, const std::string& iconPath, std::string arguments)
{
    // Asked before anything else: the user is not asked, and the program does not quit, for a
    // restart that can not happen. Without an application object Qt knows no path.
    const QString program =
        QCoreApplication::instance() ? QCoreApplication::applicationFilePath() : QString();
    if (program.isEmpty()) {
        LOG(ERROR) << "Restart refused: the application's own path is unknown";
        return false;
    }

    if (mode == Interactive) {
        Util::AlertBox box(QCoreApplication::translate("ApplicationRestarter", "Attention"),
                           QCoreApplication::translate(
                               "ApplicationRestarter",
                               "<b>This will restart the application.</b><br>Do you want to continue?"),
                           QMessageBox::Ok | QMessageBox::Cancel, QApplication::activeWindow(),
                           Qt::Dialog | Qt::MSWindowsFixedSizeDialogHint);
        const QPixmap icon(Util::Utf8ToQString(iconPath));
        if (!icon.isNull())
            box.setIconPixmap(icon);
        if (box.Exec() != QMessageBox::Ok)
            return false;
    }

    if (!tryToQuit())
        return false;

    QString command = QLatin1Char('"') + program + QLatin1Char('"');
    if (!arguments.empty())
        command += QLatin1Char(' ') + Util::Utf8ToQString(arguments);
    // The one-string form of startDetached: the command is split by the same rules Qt has always
    // used for it, never by a shell.
    QStringList parts = QProcess::splitCommand(command);
    const QString executable = parts.takeFirst();
    QProcess::startDetached(executable, parts);
    return true;
}

bool LifetimeManager::tryToQuit()
{
    bool cancelled = false;
    const std::function<void()> cancel = [&cancelled]() { cancelled = true; };
    d->observers.Notify(&ILifetimeObserver::onQuitRequested, cancel);
    if (cancelled)
        return false;

    d->quitting = true;
    d->observers.Notify(&ILifetimeObserver::onQuit);
    quitImpl();
    return true;
}

bool LifetimeManager::isQuitting() const
{
    return d->quitting;
}

void LifetimeManager::addOnStartCallback(const std::function<void()>& callback)
{
    if (!callback)
        return;
    d->onStartHandlers.emplace_back(callback);
    d->observers.RegisterEventHandler(&d->onStartHandlers.back());
}

void LifetimeManager::quitImpl()
{
    QCoreApplication::quit();
}

} // namespace Ostrel::App
