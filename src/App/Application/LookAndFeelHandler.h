#pragma once

#include "App/Application/ostrel_app_export.h"
#include "Interfaces/ILookAndFeelObserver.h"

#include <QObject>

#include <list>
#include <memory>
#include <string>

class QAction;
class QMenu;

namespace Ostrel::App {

class ILookAndFeelManager;

/// Keeps a Language menu and a Theme menu of the host in step with the look-and-feel manager.
/// A click switches the manager and emits LocaleChanged/ThemeChanged; a change made through the
/// manager only moves the check mark. The host supplies the lists and the first selection; the
/// menus stay the host's.
///
/// The manager may be null, and every use of it is guarded: the menus then show the theme names
/// themselves, and a click only moves the check mark and emits. (A deliberate departure, for
/// safety: a null manager is accepted at construction, so no later call may crash on it.)
class OSTREL_APP_EXPORT LookAndFeelHandler : public QObject, public ILookAndFeelObserver
{
    Q_OBJECT
public:
    LookAndFeelHandler(std::shared_ptr<ILookAndFeelManager> manager, QMenu* localeMenu, QMenu* themeMenu,
                       QObject* parent = nullptr);
    ~LookAndFeelHandler() override;

    void SetLocaleList(const std::list<std::string>& locales);
    void SetThemeList(const std::list<std::string>& themes);
    void SetLocaleMenu(QMenu* menu);
    void SetThemeMenu(QMenu* menu);
    void SelectLocale(const std::string& locale);
    void SelectTheme(const std::string& theme);
    /// Rebuilds each menu that has a selection.
    void Refresh();

    void OnLocaleChanged(const std::string& locale) override;
    void OnThemeChanged(const std::string& theme) override;

signals:
    void LocaleChanged(const std::string& locale);
    void ThemeChanged(const std::string& theme);

private slots:
    void OnInnerLocaleChanged(QAction* action);
    void OnInnerThemeChanged(QAction* action);
    void Retranslate();

private:
    class Impl;
    std::unique_ptr<Impl> d;
};

} // namespace Ostrel::App
