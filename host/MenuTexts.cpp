#include "MenuTexts.h"

#include <QAction>
#include <QCoreApplication>
#include <QEvent>
#include <QMenu>

#include <vector>

class MenuTexts::Impl
{
public:
    Impl(QMenu& menu, const char* context) : menu(menu), context(context) {}

    QMenu& menu;
    const char* context;
    struct Text
    {
        QAction* action;
        const char* context;
        const char* source;
    };
    // The title is the menu's own action, so it is the first entry like any other.
    std::vector<Text> texts;
};

MenuTexts::MenuTexts(QMenu& menu, const char* context, const char* title)
    : QObject(&menu), d(std::make_unique<Impl>(menu, context))
{
    d->texts.push_back({menu.menuAction(), "MenuBar", title});
    menu.installEventFilter(this);
    retranslate();
}

MenuTexts::~MenuTexts() = default;

QAction* MenuTexts::addAction(const char* source)
{
    QAction* action = d->menu.addAction(QCoreApplication::translate(d->context, source));
    d->texts.push_back({action, d->context, source});
    return action;
}

bool MenuTexts::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == &d->menu && event->type() == QEvent::LanguageChange)
        retranslate();
    return QObject::eventFilter(watched, event);
}

void MenuTexts::retranslate()
{
    for (const auto& text : d->texts)
        text.action->setText(QCoreApplication::translate(text.context, text.source));
}
