#pragma once

class QDialog;
class QWidget;

namespace Ostrel::App::NagScreen {

/// Gives the embedded QML view the keyboard focus when the dialog comes up, so that Escape and
/// Enter reach the nag without a click first.
void ApplyQmlWindowFocusWorkaround(QDialog* dialog, QWidget* view);

} // namespace Ostrel::App::NagScreen
