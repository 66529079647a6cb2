#include "HelpMenu.h"

#include "MenuTexts.h"

#include "App/Application/Application.h"
#include "Interfaces/ILinksManager.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>

using namespace Ostrel::App;

void addHelpMenu(QMenuBar& menuBar, Application& application)
{
    QMenu* menu = menuBar.addMenu(QString());
    menu->setObjectName(QStringLiteral("helpMenu"));
    auto* texts = new MenuTexts(*menu, "HelpMenu", QT_TRANSLATE_NOOP("HelpMenu", "&Help"));
    const auto add = [&](const char* text, URLKeys key) {
        QAction* action = texts->addAction(text);
        action->setObjectName(QString::fromStdString(UrlKeyNames().at(key)));
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
}
