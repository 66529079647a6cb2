#include "QtUtil/SpontaneousDialog.h"

#include <QApplication>
#include <QMainWindow>

namespace Ostrel::Util {

QWidget* SpontaneousDialog::GetMainWindow()
{
    // Widget statics need a QApplication; a plain QCoreApplication (a tool, a test) has no windows.
    if (!qobject_cast<QApplication*>(QCoreApplication::instance()))
        return nullptr;
    const QWidgetList topLevels = QApplication::topLevelWidgets();
    for (QWidget* widget : topLevels) {
        if (qobject_cast<QMainWindow*>(widget) && widget->isVisible())
            return widget;
    }
    return QApplication::activeWindow();
}

} // namespace Ostrel::Util
