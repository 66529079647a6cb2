#include "HelpMenu.h"

#include "AboutBoxDialog.h"
#include "Foundation/Utf8.h"
#include "LinksPanel.h"
#include "MenuTexts.h"

#include "App/Application/Application.h"
#include "Interfaces/ICustomizationManager.h"
#include "Interfaces/ILinksManager.h"

#include <QAction>
#include <QCoreApplication>
#include <QDialog>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPointer>
#include <QVBoxLayout>

using namespace Ostrel::App;

namespace {

void openLink(Application& application, URLKeys key)
{
    // The manager is asked at the click: the host may replace it at any time.
    if (const auto links = application.GetLinksManager())
        links->OpenUrl(key);
}

QDialog* makeLinksWindow(Application& application, QWidget* parent)
{
    // A dialog, so that the theme's window colours reach it as they reach the main window.
    auto* window = new QDialog(parent);
    window->setObjectName(QStringLiteral("linksWindow"));
    window->setAttribute(Qt::WA_DeleteOnClose);
    window->setWindowTitle(QCoreApplication::translate("HelpMenu", "Links"));
    auto* layout = new QVBoxLayout(window);
    auto* filter = new QLineEdit(window);
    filter->setObjectName(QStringLiteral("linksFilter"));
    // A placeholder is no name to a screen reader, nor is the clear button's icon: both are named.
    filter->setPlaceholderText(QCoreApplication::translate("HelpMenu", "Filter"));
    filter->setAccessibleName(filter->placeholderText());
    filter->setClearButtonEnabled(true);
    // The clear button shows the one action the line edit made for it, and reads its text.
    if (auto* clear = filter->findChild<QAction*>(QString(), Qt::FindDirectChildrenOnly))
        clear->setText(QCoreApplication::translate("HelpMenu", "Clear"));
    layout->addWidget(filter);
    auto* panel = new LinksPanel([&application](URLKeys key) { openLink(application, key); },
                                 [&application](URLKeys key) {
                                     const auto links = application.GetLinksManager();
                                     return links ? links->GetUrl(key) : QString();
                                 },
                                 window);
    layout->addWidget(panel);
    QObject::connect(filter, &QLineEdit::textChanged, panel, &LinksPanel::setFilter);
    // Typing filters, Enter opens the row in view, the arrows move through the rows.
    QObject::connect(filter, &QLineEdit::returnPressed, panel, [panel]() {
        if (QTreeWidgetItem* item = panel->currentItem())
            Q_EMIT panel->itemActivated(item, 0);
    });
    filter->installEventFilter(panel);
    window->resize(720, 480);
    return window;
}

} // namespace

void addHelpMenu(QMenuBar& menuBar, Application& application)
{
    QMenu* menu = menuBar.addMenu(QString());
    menu->setObjectName(QStringLiteral("helpMenu"));
    auto* texts = new MenuTexts(*menu, "HelpMenu", QT_TRANSLATE_NOOP("MenuBar", "&Help"));
    const auto add = [&](const char* text, URLKeys key) {
        QAction* action = texts->addAction(text);
        action->setObjectName(Ostrel::Util::Utf8ToQString(UrlKeyNames.at(key)));
        QObject::connect(action, &QAction::triggered, menu,
                         [&application, key]() { openLink(application, key); });
        return action;
    };
    // F1 opens the help, also while the menu is closed: the action lives in the window.
    QAction* help = add(QT_TRANSLATE_NOOP("HelpMenu", "&Help Center"), HELP_URL_menu);
    help->setShortcut(QKeySequence::HelpContents);
    help->setShortcutContext(Qt::ApplicationShortcut);
    menuBar.window()->addAction(help);
    add(QT_TRANSLATE_NOOP("HelpMenu", "&Frequently Asked Questions"), FAQ_URL_menu);
    add(QT_TRANSLATE_NOOP("HelpMenu", "&Contact Support"), CONTACT_SUPPORT_URL_menu);
    menu->addSeparator();
    add(QT_TRANSLATE_NOOP("HelpMenu", "Community F&orum"), FORUM_URL_menu);
    add(QT_TRANSLATE_NOOP("HelpMenu", "Ho&me Page"), HOMEPAGE_URL_menu);
    add(QT_TRANSLATE_NOOP("HelpMenu", "&Privacy Policy"), PRIVACY_POLICY_URL);
    menu->addSeparator();
    // Every link the shell knows, in a window of its own made when asked for: a list view costs
    // the start a megabyte that the first window does not need.
    QAction* all = texts->addAction(QT_TRANSLATE_NOOP("HelpMenu", "All &Links..."));
    all->setObjectName(QStringLiteral("allLinks_action"));
    QObject::connect(all, &QAction::triggered, menu, [&application, &menuBar]() {
        QDialog* window = makeLinksWindow(application, menuBar.window());
        window->show();
    });
    menu->addSeparator();
    QAction* about = texts->addAction(QT_TRANSLATE_NOOP("HelpMenu", "&About..."));
    about->setObjectName(QStringLiteral("about_action"));
    about->setMenuRole(QAction::AboutRole);
    QObject::connect(about, &QAction::triggered, menu, [&application, &menuBar]() {
        const auto customization = application.GetCustomizationManager();
        const QString name = customization ? Ostrel::Util::Utf8ToQString(customization->GetPresentableName())
                                           : QCoreApplication::applicationName();
        auto* box = new AboutBoxDialog(
            name, [&application]() { openLink(application, HOMEPAGE_URL_menuabout); }, menuBar.window());
        box->setAttribute(Qt::WA_DeleteOnClose);
        box->open();
    });
}
