#pragma once

#include "App/Application/ostrel_app_export.h"

#include <QObject>

#include <functional>
#include <memory>

class QMenuBar;
class QWidget;

namespace Ostrel::App {

/// Wires the standard application menu ("menuMacOSMenu": hide, hide others, preferences, quit)
/// and window menu ("menuWindow": minimize, zoom, bring all to front) of a menu bar: the actions
/// are found by their object names, get their usual shortcuts, and act on the active window.
/// Menus or actions that aren't there are left out.
///
/// `canManipulate` may refuse a window (an empty function accepts every one). With no active
/// window it is still asked about null, but a yes changes nothing: with no window there is nothing
/// to minimize or zoom. (A deliberate departure, for safety: the answer alone would let an empty
/// function act on a null window.)
class OSTREL_APP_EXPORT MacMenuActionHandler : public QObject
{
    Q_OBJECT

public:
    MacMenuActionHandler(QMenuBar* menuBar, std::function<bool(QWidget*)> canManipulate);
    ~MacMenuActionHandler() override;

private Q_SLOTS:
    void onHideItself();
    void onHideOthers();
    void onMinimize();
    void onZoom();
    void onBringAllToFront();

private:
    virtual bool canManipulateWithWidget(QWidget* widget);

    class Impl;
    std::unique_ptr<Impl> d;
};

} // namespace Ostrel::App
