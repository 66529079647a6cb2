#include "App/Application/MacMenuActionHandler.h"

#include <QAction>
#include <QApplication>
#include <QKeySequence>
#include <QMenu>
#include <QMenuBar>

#include <glog/logging.h>

namespace Ostrel::App {

class MacMenuActionHandler::Impl
{
public:
    std::function<bool(QWidget*)> canManipulate;
};

namespace {

QAction* findAction(const QMenu* menu, const QString& name)
{
    const QList<QAction*> actions = menu->actions();
    for (QAction* action : actions) {
        if (action->objectName() == name)
            return action;
    }
    return nullptr;
}

} // namespace

MacMenuActionHandler::MacMenuActionHandler(QMenuBar* menuBar, std::function<bool(QWidget*)> canManipulate)
    : QObject(menuBar), d(std::make_unique<Impl>())
{
    d->canManipulate = std::move(canManipulate);

    // Each row: the action's name, the slot it triggers (or none) and its shortcut (or none).
    const auto wire = [this](QMenu* menu, const QString& name, const char* slot,
                             const QKeySequence& shortcut) {
        QAction* action = findAction(menu, name);
        if (!action)
            return;
        if (slot)
            connect(action, SIGNAL(triggered()), this, slot);
        if (!shortcut.isEmpty())
            action->setShortcut(shortcut);
    };

    if (auto* appMenu = menuBar->findChild<QMenu*>(QStringLiteral("menuMacOSMenu"))) {
        wire(appMenu, QStringLiteral("action_Hide"), SLOT(onHideItself()),
             QKeySequence(Qt::CTRL | Qt::Key_H));
        wire(appMenu, QStringLiteral("action_Hide_Others"), SLOT(onHideOthers()),
             QKeySequence(Qt::CTRL | Qt::ALT | Qt::Key_H));
        wire(appMenu, QStringLiteral("action_Preferences"), nullptr, QKeySequence(QKeySequence::Preferences));
        // Whatever the last action is called, it quits; set last so that this shortcut stands.
        if (!appMenu->actions().isEmpty())
            appMenu->actions().last()->setShortcut(QKeySequence(QKeySequence::Quit));
        else
            LOG(WARNING) << "The application menu has no actions: no quit shortcut";
    }
    if (auto* windowMenu = menuBar->findChild<QMenu*>(QStringLiteral("menuWindow"))) {
        wire(windowMenu, QStringLiteral("actionMinimize"), SLOT(onMinimize()), QKeySequence());
        wire(windowMenu, QStringLiteral("actionZoom"), SLOT(onZoom()), QKeySequence());
        wire(windowMenu, QStringLiteral("actionBring_all_to_Front"), SLOT(onBringAllToFront()),
             QKeySequence());
    }
}

MacMenuActionHandler::~MacMenuActionHandler() = default;

bool MacMenuActionHandler::canManipulateWithWidget(QWidget* widget)
{
    return !d->canManipulate || d->canManipulate(widget);
}

// The system does these three itself; the actions are wired so that the menu shows them enabled.
void MacMenuActionHandler::onHideItself() {}
void MacMenuActionHandler::onHideOthers() {}
void MacMenuActionHandler::onBringAllToFront() {}

void MacMenuActionHandler::onMinimize()
{
    QWidget* window = QApplication::activeWindow();
    if (canManipulateWithWidget(window) && window)
        window->showMinimized();
}

void MacMenuActionHandler::onZoom()
{
    QWidget* window = QApplication::activeWindow();
    if (!canManipulateWithWidget(window) || !window)
        return;
    if (window->isMaximized())
        window->showNormal();
    else
        window->showMaximized();
}

} // namespace Ostrel::App
