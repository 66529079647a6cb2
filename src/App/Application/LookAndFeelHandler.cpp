#include "App/Application/LookAndFeelHandler.h"

#include "App/Application/LocaleNames.h"
#include "Foundation/Utf8.h"
#include "Interfaces/ILookAndFeelManager.h"

#include <QAction>
#include <QActionGroup>
#include <QMenu>

#include <functional>
#include <map>

namespace Ostrel::App {

using Util::QStringToUtf8;
using Util::Utf8ToQString;

namespace {

using ActionMap = std::map<std::string, QAction*>;

void rebuild(QMenu* menu, QActionGroup* group, const std::list<std::string>& keys, ActionMap& actions,
             const std::function<std::string(const std::string&)>& displayText)
{
    if (!menu || !group)
        return;
    actions.clear();
    const QList<QAction*> shown = menu->actions();
    for (QAction* action : shown) {
        menu->removeAction(action);
        // A separator the menu made (addSeparator) has no use once out of it.
        if (action->isSeparator() && action->parent() == menu)
            delete action;
    }
    const QList<QAction*> grouped = group->actions();
    for (QAction* action : grouped) {
        group->removeAction(action);
        action->deleteLater();
    }
    for (const std::string& key : keys) {
        auto* action = new QAction(group);
        action->setText(Utf8ToQString(displayText(key)));
        action->setData(Utf8ToQString(key));
        action->setCheckable(true);
        group->addAction(action);
        menu->addAction(action);
        actions[key] = action;
    }
}

void check(const ActionMap& actions, const std::string& key)
{
    if (actions.empty())
        return;
    const auto it = actions.find(key);
    // A key without an entry is the caller's mistake; leave the menu as it is.
    if (it != actions.end() && !it->second->isChecked())
        it->second->setChecked(true);
}

} // namespace

class LookAndFeelHandler::Impl
{
public:
    std::shared_ptr<ILookAndFeelManager> m_manager;
    QMenu* m_localeMenu = nullptr;
    QActionGroup* m_localeGroup = nullptr;
    std::list<std::string> m_locales;
    ActionMap m_localeActions;
    std::string m_selectedLocale;
    QMenu* m_themeMenu = nullptr;
    QActionGroup* m_themeGroup = nullptr;
    std::list<std::string> m_themes;
    ActionMap m_themeActions;
    std::string m_selectedTheme;

    std::string themeTitle(const std::string& theme) const
    {
        return m_manager ? m_manager->GetLocalizedThemeName(theme) : theme;
    }

    void rebuildLocales()
    {
        rebuild(m_localeMenu, m_localeGroup, m_locales, m_localeActions, &GetLocaleDisplayName);
    }
    void rebuildThemes()
    {
        rebuild(m_themeMenu, m_themeGroup, m_themes, m_themeActions,
                [this](const std::string& theme) { return themeTitle(theme); });
    }
};

LookAndFeelHandler::LookAndFeelHandler(std::shared_ptr<ILookAndFeelManager> manager, QMenu* localeMenu,
                                       QMenu* themeMenu, QObject* parent)
    : QObject(parent), d(std::make_unique<Impl>())
{
    d->m_manager = std::move(manager);
    d->m_localeMenu = localeMenu;
    d->m_themeMenu = themeMenu;
    if (d->m_manager)
        d->m_manager->RegisterObserver(this);
    d->m_localeGroup = new QActionGroup(this);
    d->m_themeGroup = new QActionGroup(this);
    connect(d->m_localeGroup, &QActionGroup::triggered, this, &LookAndFeelHandler::OnInnerLocaleChanged);
    connect(d->m_localeGroup, &QActionGroup::triggered, this, &LookAndFeelHandler::Retranslate);
    connect(d->m_themeGroup, &QActionGroup::triggered, this, &LookAndFeelHandler::OnInnerThemeChanged);
}

LookAndFeelHandler::~LookAndFeelHandler()
{
    if (d->m_manager)
        d->m_manager->UnregisterObserver(this);
}

void LookAndFeelHandler::SetLocaleList(const std::list<std::string>& locales)
{
    d->m_locales = locales;
    if (d->m_localeMenu) {
        d->rebuildLocales();
        d->m_localeMenu->addSeparator();
    }
}

void LookAndFeelHandler::SetThemeList(const std::list<std::string>& themes)
{
    d->m_themes = themes;
    if (d->m_themeMenu)
        d->rebuildThemes();
}

void LookAndFeelHandler::SetLocaleMenu(QMenu* menu)
{
    if (d->m_localeMenu)
        d->m_localeMenu->clear();
    d->m_localeMenu = menu;
    Refresh();
}

void LookAndFeelHandler::SetThemeMenu(QMenu* menu)
{
    if (d->m_themeMenu)
        d->m_themeMenu->clear();
    d->m_themeMenu = menu;
    Refresh();
}

void LookAndFeelHandler::SelectLocale(const std::string& locale)
{
    d->m_selectedLocale = locale;
    if (d->m_localeMenu)
        check(d->m_localeActions, locale);
}

void LookAndFeelHandler::SelectTheme(const std::string& theme)
{
    d->m_selectedTheme = theme;
    if (d->m_themeMenu)
        check(d->m_themeActions, theme);
}

void LookAndFeelHandler::Refresh()
{
    if (d->m_localeMenu && !d->m_selectedLocale.empty()) {
        d->rebuildLocales();
        d->m_localeMenu->addSeparator();
        check(d->m_localeActions, d->m_selectedLocale);
    }
    if (d->m_themeMenu && !d->m_selectedTheme.empty()) {
        d->rebuildThemes();
        check(d->m_themeActions, d->m_selectedTheme);
    }
}

void LookAndFeelHandler::OnLocaleChanged(const std::string& locale)
{
    SelectLocale(locale);
}

void LookAndFeelHandler::OnThemeChanged(const std::string& theme)
{
    SelectTheme(theme);
}

void LookAndFeelHandler::OnInnerLocaleChanged(QAction* action)
{
    const std::string locale = QStringToUtf8(action->data().toString());
    // The manager may settle on another locale and tell us through OnLocaleChanged; the user's
    // click is what the menu shows and what the signal carries.
    if (d->m_manager)
        d->m_manager->SetLocale(locale);
    SelectLocale(locale);
    emit LocaleChanged(locale);
}

void LookAndFeelHandler::OnInnerThemeChanged(QAction* action)
{
    const std::string theme = QStringToUtf8(action->data().toString());
    if (d->m_manager)
        d->m_manager->SetTheme(theme);
    SelectTheme(theme);
    emit ThemeChanged(theme);
}

void LookAndFeelHandler::Retranslate()
{
    for (const auto& [key, action] : d->m_localeActions)
        action->setText(Utf8ToQString(GetLocaleDisplayName(QStringToUtf8(action->data().toString()))));
    for (const auto& [key, action] : d->m_themeActions)
        action->setText(Utf8ToQString(d->themeTitle(QStringToUtf8(action->data().toString()))));
}

} // namespace Ostrel::App
