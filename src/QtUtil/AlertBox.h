#pragma once

#include "QtUtil/ostrel_qtutil_export.h"

#include <QMessageBox>

namespace Ostrel::Util {

/// The shell's message box. Code asks questions through Exec(), which tests override to answer
/// without a person in front of the screen.
class OSTREL_QTUTIL_EXPORT AlertBox : public QMessageBox
{
    Q_OBJECT

public:
    /// How serious the message is. The values are stored and compared as integers, so they are fixed.
    /// Each maps to the QMessageBox icon of the same name:
    ///   Information -> QMessageBox::Information, Question -> QMessageBox::Question,
    ///   Warning -> QMessageBox::Warning, Critical -> QMessageBox::Critical.
    /// Any other value (a level read from a file, say) shows no icon.
    enum Level
    {
        Information = 0,
        Question = 1,
        Warning = 2,
        Critical = 3,
    };

    /// A box with the icon of `level`.
    AlertBox(Level level, const QString& title, const QString& text, QMessageBox::StandardButtons buttons,
             QWidget* parent = nullptr,
             Qt::WindowFlags flags = Qt::Dialog | Qt::MSWindowsFixedSizeDialogHint);

    /// A box without an icon.
    AlertBox(const QString& title, const QString& text, QMessageBox::StandardButtons buttons,
             QWidget* parent = nullptr,
             Qt::WindowFlags flags = Qt::Dialog | Qt::MSWindowsFixedSizeDialogHint);

    ~AlertBox() override;

    /// The QMessageBox icon shown for `level` (NoIcon for a value outside Level).
    static QMessageBox::Icon iconForLevel(int level);

    /// Shows the box modally and returns the standard button that closed it. Escape and the window's
    /// close button give the escape button (normally Cancel); a box dismissed without any button
    /// to stand for that gives QMessageBox::Cancel.
    virtual QMessageBox::StandardButton Exec();
};

} // namespace Ostrel::Util
