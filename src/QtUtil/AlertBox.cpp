#include "QtUtil/AlertBox.h"

#include <QAbstractButton>

namespace Ostrel::Util {

AlertBox::AlertBox(Level level, const QString& title, const QString& text,
                   QMessageBox::StandardButtons buttons, QWidget* parent, Qt::WindowFlags flags)
    : QMessageBox(iconForLevel(level), title, text, buttons, parent, flags)
{
}

AlertBox::AlertBox(const QString& title, const QString& text, QMessageBox::StandardButtons buttons,
                   QWidget* parent, Qt::WindowFlags flags)
    : QMessageBox(QMessageBox::NoIcon, title, text, buttons, parent, flags)
{
}

AlertBox::~AlertBox() = default;

QMessageBox::Icon AlertBox::iconForLevel(int level)
{
    switch (level) {
    case Information:
        return QMessageBox::Information;
    case Question:
        return QMessageBox::Question;
    case Warning:
        return QMessageBox::Warning;
    case Critical:
        return QMessageBox::Critical;
    default:
        return QMessageBox::NoIcon;
    }
}

QMessageBox::StandardButton AlertBox::Exec()
{
    exec();
    // exec()'s own result is an index for boxes with custom buttons, so the clicked button is
    // the reliable answer.
    if (QAbstractButton* clicked = clickedButton()) {
        const QMessageBox::StandardButton button = standardButton(clicked);
        if (button != QMessageBox::NoButton)
            return button;
    }
    if (QAbstractButton* escape = escapeButton()) {
        const QMessageBox::StandardButton button = standardButton(escape);
        if (button != QMessageBox::NoButton)
            return button;
    }
    return QMessageBox::Cancel;
}

} // namespace Ostrel::Util
