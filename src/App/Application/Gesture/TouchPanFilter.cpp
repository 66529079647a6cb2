#include "App/Application/Gesture/TouchPanFilter.h"

#include "App/Application/Gesture/Consumer.h"
#include "App/Application/Gesture/Router.h"

#include <QPointer>
#include <QTouchEvent>

namespace Ostrel::App {

class Gesture::TouchPanFilter::Impl
{
public:
    // The consumer is a child object of a widget (that is how the walk finds it): the guard
    // notices when it goes away in the middle of a sequence.
    QPointer<QObject> guard;
    Consumer* consumer = nullptr;
    int mask = None;
    int touchId = -1;
    std::int32_t startX = 0;
    std::int32_t startY = 0;
    Pan last;

    bool active() const { return consumer && guard; }

    Pan record(const QTouchEvent::TouchPoint& point)
    {
        Pan pan;
        const QPoint client = point.pos().toPoint();
        const QPoint screen = point.screenPos().toPoint();
        pan.x = (mask & (All | 4)) ? client.x() : startX;
        pan.y = (mask & (All | 2)) ? client.y() : startY;
        pan.screenX = screen.x();
        pan.screenY = screen.y();
        pan.startX = startX;
        pan.startY = startY;
        last = pan;
        return pan;
    }

    // Ends the pan where the finger was last seen.
    void finish()
    {
        if (active()) {
            Pan pan = last;
            pan.begin = false;
            pan.end = true;
            consumer->OnGesture(pan);
        }
        consumer = nullptr;
        guard.clear();
        touchId = -1;
    }
};

Gesture::TouchPanFilter::TouchPanFilter(QObject* parent) : QObject(parent), d(std::make_unique<Impl>()) {}

Gesture::TouchPanFilter::~TouchPanFilter() = default;

bool Gesture::TouchPanFilter::eventFilter(QObject* watched, QEvent* event)
{
    // The window sees the touch before any widget does, whether or not a widget accepts touch.
    const QEvent::Type type = event->type();
    if (!watched->isWindowType() || (type != QEvent::TouchBegin && type != QEvent::TouchUpdate &&
                                     type != QEvent::TouchEnd && type != QEvent::TouchCancel))
        return false;

    auto* touch = static_cast<QTouchEvent*>(event);
    const QList<QTouchEvent::TouchPoint>& points = touch->touchPoints();

    if (type == QEvent::TouchBegin) {
        d->finish();
        if (points.size() != 1)
            return false;
        const QTouchEvent::TouchPoint& point = points.first();
        const QPoint screen = point.screenPos().toPoint();
        Consumer* consumer = Router::consumerAt(screen);
        if (!consumer)
            return false;
        Pan query;
        query.x = point.pos().toPoint().x();
        query.y = point.pos().toPoint().y();
        query.screenX = screen.x();
        query.screenY = screen.y();
        d->mask = consumer->WantGesture(query);
        if (d->mask == None)
            return false;
        d->consumer = consumer;
        d->guard = dynamic_cast<QObject*>(consumer);
        d->touchId = point.id();
        d->startX = query.x;
        d->startY = query.y;
        Pan begin = d->record(point);
        begin.begin = true;
        consumer->OnGesture(begin);
        touch->accept();
        return true;
    }

    if (!d->active())
        return false;
    if (type == QEvent::TouchCancel || points.size() != 1 || points.first().id() != d->touchId) {
        d->finish();
        return false;
    }
    const QTouchEvent::TouchPoint& point = points.first();
    if (type == QEvent::TouchEnd || point.state() == Qt::TouchPointReleased) {
        d->record(point);
        d->finish();
    } else if (point.state() == Qt::TouchPointMoved) {
        d->consumer->OnGesture(d->record(point));
    }
    touch->accept();
    return true;
}

} // namespace Ostrel::App
