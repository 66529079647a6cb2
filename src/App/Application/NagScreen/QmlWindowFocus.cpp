#include "App/Application/NagScreen/QmlWindowFocus_p.h"

#include <QDialog>
#include <QEvent>
#include <QPointer>
#include <QTimer>

namespace Ostrel::App::NagScreen {

namespace {

// Lives as a child of the dialog: on each show it hands the focus to the view once the window is
// really active, which is only after the show event has been processed.
class FocusOnShow : public QObject
{
public:
    FocusOnShow(QDialog* dialog, QWidget* view) : QObject(dialog), m_view(view)
    {
        dialog->installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Show) {
            QTimer::singleShot(0, this, [this]() {
                if (!m_view)
                    return;
                m_view->activateWindow();
                m_view->setFocus(Qt::ActiveWindowFocusReason);
            });
        }
        return QObject::eventFilter(watched, event);
    }

private:
    QPointer<QWidget> m_view;
};

} // namespace

void ApplyQmlWindowFocusWorkaround(QDialog* dialog, QWidget* view)
{
    if (dialog && view)
        new FocusOnShow(dialog, view);
}

} // namespace Ostrel::App::NagScreen
