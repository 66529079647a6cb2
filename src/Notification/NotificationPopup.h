#pragma once

#include "Notification/CloseReason.h"
#include "Notification/ostrel_notification_export.h"

#include <QWidget>

#include <functional>
#include <memory>

namespace Ostrel::DesktopNotification {

/// A frameless popup near the bottom-right corner of the screen (bottom-left on right-to-left
/// layouts) that fades in and out around a content widget. The content stays its owner's: the
/// popup gives it back (parent null) when it dies.
///
/// The closed callback fires exactly once for each time the popup was shown and then closed,
/// whichever way it closed.
class OSTREL_NOTIFICATION_EXPORT NotificationPopup : public QWidget
{
    Q_OBJECT
public:
    /// How long a fade in or out takes unless SetFadeDuration says otherwise.
    static constexpr int DefaultFadeMs = 220;
    /// How long an auto-hiding popup stays unless SetAutoHideTimeout says otherwise.
    static constexpr int DefaultAutoHideMs = 8000;

    /// With `autoHide`, the popup fades out by itself after AutoHideTimeout().
    NotificationPopup(QWidget* content, bool autoHide);
    ~NotificationPopup() override;

    void SmoothShow();
    void SmoothHide();
    void SetOnClosedCallback(std::function<void(CloseReason)> callback);

    int FadeDuration() const;
    void SetFadeDuration(int milliseconds);
    int AutoHideTimeout() const;
    void SetAutoHideTimeout(int milliseconds);

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void reportClosed(CloseReason reason);
    void place();

    class Impl;
    std::unique_ptr<Impl> d;
};

} // namespace Ostrel::DesktopNotification
