#pragma once

#include "QtUtil/ostrel_qtutil_export.h"

#include <QObject>

class QWidget;

namespace Ostrel::Util {

/// Helpers for windows that appear on their own (a notice, a question from the background) rather
/// than in answer to a click, and so have no obvious parent.
class OSTREL_QTUTIL_EXPORT SpontaneousDialog
{
public:
    SpontaneousDialog() = delete;

    /// The application's main window: the first visible top-level QMainWindow, else the active
    /// window, else null (also without a QApplication).
    static QWidget* GetMainWindow();

    /// The nearest ancestor of `object` (not `object` itself) that is a T, or null.
    template <class T> static T* findParent(QObject* object)
    {
        for (QObject* parent = object ? object->parent() : nullptr; parent; parent = parent->parent()) {
            if (T* match = qobject_cast<T*>(parent))
                return match;
        }
        return nullptr;
    }
};

} // namespace Ostrel::Util
