#include "App/Application/Extensions/Tyfi/OwnWindowCheck_p.h"

#include <QCoreApplication>
#include <QEvent>
#include <QGuiApplication>
#include <QWindow>

namespace Ostrel::App {

namespace {

// Without a window list that another thread may walk, the GUI thread keeps the answer: it
// recounts the visible top-level windows whenever one of them is shown or hidden, and the
// helper thread only reads the count.
std::atomic<int>& visibleWindowCount()
{
    static std::atomic<int> count{0};
    return count;
}

void recount()
{
    int visible = 0;
    for (const QWindow* window : QGuiApplication::topLevelWindows()) {
        if (window->isVisible())
            ++visible;
    }
    visibleWindowCount() = visible;
}

class VisibilityFilter : public QObject
{
public:
    using QObject::QObject;

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        const QEvent::Type type = event->type();
        if ((type == QEvent::Show || type == QEvent::Hide) && watched->isWindowType())
            recount();
        return false;
    }
};

} // namespace

void PrepareOwnWindowCheck()
{
    if (!qobject_cast<QGuiApplication*>(QCoreApplication::instance()))
        return;
    // One filter for the process, owned by the application object.
    static VisibilityFilter* const filter = [] {
        auto* created = new VisibilityFilter(QCoreApplication::instance());
        QCoreApplication::instance()->installEventFilter(created);
        return created;
    }();
    (void)filter;
    recount();
}

void CheckForOwnWindow(std::atomic<bool>& waiting)
{
    if (waiting && visibleWindowCount() > 0)
        waiting = false;
}

} // namespace Ostrel::App
