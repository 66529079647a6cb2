#pragma once

#include <QObject>

/// Touch for the whole application: the gesture messages of the window system and Qt's touch
/// events both reach the consumer under the finger (a `Gesture::Scroller` of a scrollable view).
/// Installed while this object lives.
class GestureWiring : public QObject
{
    Q_OBJECT
public:
    explicit GestureWiring(QObject* parent = nullptr);
    ~GestureWiring() override;
};
