#include "GestureWiring.h"

#include "App/Application/Gesture/NativeEventFilter.h"
#include "App/Application/Gesture/TouchPanFilter.h"

#include <QCoreApplication>

using namespace Ostrel::App;

GestureWiring::GestureWiring(QObject* parent) : QObject(parent)
{
    // Both are children: they leave the application with this object.
    QCoreApplication::instance()->installNativeEventFilter(new NativeEventFilter(this));
    QCoreApplication::instance()->installEventFilter(new Gesture::TouchPanFilter(this));
}

GestureWiring::~GestureWiring() = default;
