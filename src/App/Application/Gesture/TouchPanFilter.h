#pragma once

#include "App/Application/Gesture/Gesture.h"

#include <QObject>

#include <memory>

namespace Ostrel::App {

/// Touch screens that deliver QTouchEvents (every platform but the one with gesture messages):
/// a one-finger touch sequence becomes `Pan` records, begin, moves and end, for the consumer that
/// the router's walk finds under the finger when the sequence begins. So a `Scroller` scrolls
/// there too. The host installs it on the application: `app.installEventFilter(filter)`.
///
/// A sequence is taken only when the consumer's pan mask is nonzero; a direction the mask leaves
/// out is held at the start position. A second finger ends the pan; the rest of that sequence
/// goes on as Qt delivers it.
class OSTREL_APP_EXPORT Gesture::TouchPanFilter : public QObject
{
    Q_OBJECT

public:
    explicit TouchPanFilter(QObject* parent = nullptr);
    ~TouchPanFilter() override;

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    class Impl;
    std::unique_ptr<Impl> d;
};

} // namespace Ostrel::App
