#pragma once

#include <QAccessibleWidget>

class QQuickWidget;

namespace Ostrel::App::NagScreen {

/// The accessible face of a `QQuickWidget`. Qt 5.15 shows a screen reader a quick widget as one
/// empty Client node, so nothing a nag draws would be heard. This interface hands on the children
/// of the widget's own quick window, whose items map their geometry to the screen themselves,
/// since the widget keeps that window where it stands. `install()` registers the factory, once
/// per process, for every quick widget.
class QuickWidgetAccessible : public QAccessibleWidget
{
public:
    explicit QuickWidgetAccessible(QQuickWidget* view);

    static void install();

    int childCount() const override;
    QAccessibleInterface* child(int index) const override;
    int indexOfChild(const QAccessibleInterface* child) const override;
    QAccessibleInterface* childAt(int x, int y) const override;
    QAccessibleInterface* focusChild() const override;

private:
    QAccessibleInterface* scene() const;
};

} // namespace Ostrel::App::NagScreen
