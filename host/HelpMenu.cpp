#include "HelpMenu.h"

#include "Foundation/Utf8.h"
#include "LinksPanel.h"
#include "MenuTexts.h"

#include "App/Application/Application.h"
#include "Interfaces/ILinksManager.h"

#include <QAction>
#include <QCoreApplication>
#include <QDialog>
#include <QMenu>
#include <QMenuBar>
#include <QVBoxLayout>

using namespace Ostrel::App;

void addHelpMenu(QMenuBar& menuBar, Application& application)
{
    QMenu* menu = menuBar.addMenu(QString());
    menu->setObjectName(QStringLiteral("helpMenu"));
    auto* texts = new MenuTexts(*menu, "HelpMenu", QT_TRANSLATE_NOOP("HelpMenu", "&Help"));
    const auto add = [&](const char* text, URLKeys key) {
        QAction* action = texts->addAction(text);
        action->setObjectName(Ostrel::Util::Utf8ToQString(UrlKeyNames.at(key)));
        // The manager is asked at the click: the host may replace it at any time.
        QObject::connect(action, &QAction::triggered, menu,
                         [&application, key]() { application.GetLinksManager()->OpenUrl(key); });
    };
    add(QT_TRANSLATE_NOOP("HelpMenu", "&Help Center"), HELP_URL_menu);
    add(QT_TRANSLATE_NOOP("HelpMenu", "&Frequently Asked Questions"), FAQ_URL_menu);
    add(QT_TRANSLATE_NOOP("HelpMenu", "&Contact Support"), CONTACT_SUPPORT_URL_menu);
    menu->addSeparator();
    add(QT_TRANSLATE_NOOP("HelpMenu", "Community &Forum"), FORUM_URL_menu);
    add(QT_TRANSLATE_NOOP("HelpMenu", "&Home Page"), HOMEPAGE_URL_menu);
    add(QT_TRANSLATE_NOOP("HelpMenu", "&Privacy Policy"), PRIVACY_POLICY_URL);
    menu->addSeparator();
    // Every link the shell knows, in a window of its own made when asked for: a list view costs
    // the start a megabyte that the first window does not need.
    QAction* all = texts->addAction(QT_TRANSLATE_NOOP("HelpMenu", "All &Links..."));
    all->setObjectName(QStringLiteral("allLinks_action"));
    QObject::connect(all, &QAction::triggered, menu, [&application, &menuBar]() {
        // A dialog, so that the theme's window colours reach it as they reach the main window.
        auto* window = new QDialog(menuBar.window());
        window->setAttribute(Qt::WA_DeleteOnClose);
        window->setWindowTitle(QCoreApplication::translate("HelpMenu", "Links"));
        auto* layout = new QVBoxLayout(window);
        layout->addWidget(new LinksPanel(
            [&application](URLKeys key) {
                if (const auto links = application.GetLinksManager())
                    links->OpenUrl(key);
            },
            window));
        window->resize(420, 480);
        window->show();
    });
}
