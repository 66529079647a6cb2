#include "Nag/QuickWidgetAccessible_p.h"

#include <QQuickWidget>
#include <QQuickWindow>

namespace Ostrel::App::NagScreen {

namespace {

QAccessibleInterface* createFor(const QString& className, QObject* object)
{
    if (className == QLatin1String("QQuickWidget"))
        return new QuickWidgetAccessible(static_cast<QQuickWidget*>(object));
    return nullptr;
}

} // namespace

QuickWidgetAccessible::QuickWidgetAccessible(QQuickWidget* view)
    : QAccessibleWidget(view, QAccessible::Client)
{
}

void QuickWidgetAccessible::install()
{
    QAccessible::installFactory(&createFor); // Qt keeps each factory once
}

QAccessibleInterface* QuickWidgetAccessible::scene() const
{
    QQuickWindow* window = static_cast<QQuickWidget*>(widget())->quickWindow();
    return window ? QAccessible::queryAccessibleInterface(window) : nullptr;
}

int QuickWidgetAccessible::childCount() const
{
    QAccessibleInterface* items = scene();
    return items ? items->childCount() : 0;
}

QAccessibleInterface* QuickWidgetAccessible::child(int index) const
{
    QAccessibleInterface* items = scene();
    return items ? items->child(index) : nullptr;
}

int QuickWidgetAccessible::indexOfChild(const QAccessibleInterface* child) const
{
    QAccessibleInterface* items = scene();
    return items ? items->indexOfChild(child) : -1;
}

QAccessibleInterface* QuickWidgetAccessible::childAt(int x, int y) const
{
    QAccessibleInterface* items = scene();
    return items ? items->childAt(x, y) : nullptr;
}

QAccessibleInterface* QuickWidgetAccessible::focusChild() const
{
    QAccessibleInterface* items = scene();
    return items ? items->focusChild() : nullptr;
}

} // namespace Ostrel::App::NagScreen
