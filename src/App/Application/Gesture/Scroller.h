#pragma once

#include "App/Application/Gesture/Emitter.h"

#include <memory>

class QAbstractScrollArea;

namespace Ostrel::App {

/// Touch scrolling for any scroll area: made with the area as its parent, it asks for every kind
/// of pan and moves the area's scroll bars with the finger. Item views scroll by the pixel while
/// the finger is down and get their own scroll mode back at the end, still at the end of the list
/// if they got there.
class OSTREL_APP_EXPORT Gesture::Scroller : public Gesture::Emitter
{
    Q_OBJECT

public:
    explicit Scroller(QAbstractScrollArea* area);
    ~Scroller() override;

private Q_SLOTS:
    void scrollByPanning(const Ostrel::App::Gesture::Pan& pan);

private:
    class Impl;
    std::unique_ptr<Impl> d;
};

} // namespace Ostrel::App
