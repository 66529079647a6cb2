#include "App/Application/Extensions/ModalFreeGateway.h"

#include <glog/logging.h>

#include <QApplication>
#include <QEvent>
#include <QPointer>
#include <QTimer>
#include <QWidget>

#include <deque>

namespace Ostrel::ExternalStimulus {

class ModalFreeGateway::Impl : public QObject
{
public:
    std::deque<Stimulus> held;
    // The modal window the next action waits behind.
    QPointer<QWidget> blocker;
    bool scheduled = false;

    // Through the event loop: the poster is often in the middle of the start, and a window it
    // is about to open (a modal question queued just before) gets its turn first.
    void schedule()
    {
        if (scheduled || held.empty())
            return;
        scheduled = true;
        QTimer::singleShot(0, this, [this]() {
            scheduled = false;
            runNext();
        });
    }

    void runNext()
    {
        if (held.empty() || blocker)
            return;
        if (QWidget* modal = QApplication::activeModalWidget()) {
            // Waits for that window to close; one that opens behind it is found at the next try.
            blocker = modal;
            modal->installEventFilter(this);
            connect(modal, &QObject::destroyed, this, &Impl::unblock, Qt::UniqueConnection);
            VLOG(1) << "Gateway holds \"" << held.front().name << "\" behind a modal window";
            return;
        }
        const Stimulus next = held.front();
        held.pop_front();
        if (next.action)
            next.action();
        // An action may run a modal loop of its own; the rest wait for their turn after it.
        schedule();
    }

    void unblock()
    {
        if (blocker) {
            blocker->removeEventFilter(this);
            disconnect(blocker, nullptr, this, nullptr);
        }
        blocker = nullptr;
        schedule();
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (watched == blocker && event->type() == QEvent::Hide)
            unblock();
        return QObject::eventFilter(watched, event);
    }
};

ModalFreeGateway::ModalFreeGateway() : d(std::make_unique<Impl>()) {}

ModalFreeGateway::~ModalFreeGateway()
{
    if (d->blocker)
        d->blocker->removeEventFilter(d.get());
}

void ModalFreeGateway::post(const Stimulus& stimulus)
{
    d->held.push_back(stimulus);
    d->schedule();
}

void ModalFreeGateway::flush()
{
    d->schedule();
}

bool ModalFreeGateway::isHolding() const
{
    return !d->held.empty();
}

} // namespace Ostrel::ExternalStimulus
