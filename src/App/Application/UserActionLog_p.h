#pragma once

class QEvent;
class QObject;

namespace Ostrel::App {

/// Logs what the user pressed, so that a support log shows the path to a failure: a mouse press
/// on an action or a button, a shortcut of an action. Every other event costs one comparison.
void LogUserAction(QObject* receiver, QEvent* event);

} // namespace Ostrel::App
