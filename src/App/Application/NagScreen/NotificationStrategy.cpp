#include "App/Application/NagScreen/NotificationStrategy.h"

#include "Nag/AbstractContent.h"
#include "Notification/NotificationPopup.h"

#include <QEventLoop>

namespace Ostrel::App::NagScreen {

namespace {
struct ScopedConnection
{
    QMetaObject::Connection connection;
    ~ScopedConnection() { QObject::disconnect(connection); }
};
} // namespace

int NotificationStrategy::ShowNag(AbstractContent& content)
{
    QEventLoop loop;
    DesktopNotification::NotificationPopup popup(content.GetUi(), false);
    popup.SetFadeDuration(m_fadeMs);
    // The content outlives this call and may be shown again: the connection must not outlive the
    // popup it reaches, also when an exception leaves the loop.
    const ScopedConnection hideOnFinish{QObject::connect(
        &content, &AbstractContent::Finished, &content, [&popup]() { popup.SmoothHide(); },
        Qt::DirectConnection)};
    popup.SmoothShow();
    popup.SetOnClosedCallback([&loop](DesktopNotification::CloseReason) { loop.exit(0); });
    return loop.exec();
}

void NotificationStrategy::SetFadeDuration(int milliseconds)
{
    m_fadeMs = milliseconds;
}

} // namespace Ostrel::App::NagScreen
