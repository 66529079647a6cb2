#include "App/Application/Gesture/Scroller.h"

#include <QAbstractItemView>
#include <QAbstractScrollArea>
#include <QScrollBar>

namespace Ostrel::App {

class Gesture::Scroller::Impl
{
public:
    QAbstractScrollArea* area = nullptr;
    QAbstractItemView* itemView = nullptr;
    std::int32_t lastX = 0;
    std::int32_t lastY = 0;
    // Written at each begin. An end without a begin restores whatever these hold, per-item first.
    QAbstractItemView::ScrollMode savedHorizontalMode = QAbstractItemView::ScrollPerItem;
    QAbstractItemView::ScrollMode savedVerticalMode = QAbstractItemView::ScrollPerItem;
};

namespace {

struct BarPosition
{
    int value;
    int maximum;
};

BarPosition positionOf(const QScrollBar* bar)
{
    return {bar->value(), bar->maximum()};
}

void keepAtEnd(QScrollBar* bar, const BarPosition& before, QAbstractItemView::ScrollMode restored)
{
    // Per-item scrolling has a range of its own: a view that stood at the end stays there.
    if (before.value == before.maximum && restored == QAbstractItemView::ScrollPerItem)
        bar->setValue(bar->maximum());
}

} // namespace

Gesture::Scroller::Scroller(QAbstractScrollArea* area) : Emitter(area), d(std::make_unique<Impl>())
{
    d->area = area;
    d->itemView = qobject_cast<QAbstractItemView*>(area);
    connect(this, SIGNAL(pan(const Ostrel::App::Gesture::Pan&)), this,
            SLOT(scrollByPanning(const Ostrel::App::Gesture::Pan&)));
    setHorizontalPanEnabled(true);
    setVerticalPanEnabled(true);
    setPanGutterEnabled(true);
    setPanInertiaEnabled(true);
}

Gesture::Scroller::~Scroller() = default;

void Gesture::Scroller::scrollByPanning(const Pan& pan)
{
    QAbstractItemView* view = d->itemView;
    if (pan.begin && view) {
        // Item by item, a slow finger would not move the list at all.
        d->savedHorizontalMode = view->horizontalScrollMode();
        d->savedVerticalMode = view->verticalScrollMode();
        view->setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
        view->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    }
    if (pan.end && view) {
        const BarPosition horizontal = positionOf(view->horizontalScrollBar());
        const BarPosition vertical = positionOf(view->verticalScrollBar());
        view->setHorizontalScrollMode(d->savedHorizontalMode);
        view->setVerticalScrollMode(d->savedVerticalMode);
        keepAtEnd(view->horizontalScrollBar(), horizontal, d->savedHorizontalMode);
        keepAtEnd(view->verticalScrollBar(), vertical, d->savedVerticalMode);
    }
    if (!pan.begin && !pan.end) {
        // The content follows the finger; the bars clamp.
        QScrollBar* horizontalBar = d->area->horizontalScrollBar();
        horizontalBar->setValue(horizontalBar->value() + (d->lastX - pan.x));
        QScrollBar* verticalBar = d->area->verticalScrollBar();
        verticalBar->setValue(verticalBar->value() + (d->lastY - pan.y));
    }
    d->lastX = pan.x;
    d->lastY = pan.y;
}

} // namespace Ostrel::App
