#include "Notification/NotificationPopup.h"

#include <QCloseEvent>
#include <QGuiApplication>
#include <QPointer>
#include <QPropertyAnimation>
#include <QScreen>
#include <QTimer>
#include <QVBoxLayout>

namespace Ostrel::DesktopNotification {

namespace {
constexpr int ScreenMargin = 16;
} // namespace

class NotificationPopup::Impl
{
public:
    QPointer<QWidget> content;
    QVBoxLayout* layout = nullptr;
    QPropertyAnimation* fade = nullptr;
    QTimer* autoHide = nullptr;
    std::function<void(CloseReason)> onClosed;
    bool open = false;
    bool hiding = false;
    CloseReason hideReason = CloseReason::Hidden;
};

NotificationPopup::NotificationPopup(QWidget* content, bool autoHide)
    : QWidget(nullptr, Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint),
      d(std::make_unique<Impl>())
{
    setObjectName(QStringLiteral("NotificationPopup"));
    setAttribute(Qt::WA_TranslucentBackground);
    setAttribute(Qt::WA_ShowWithoutActivating);
    d->content = content;
    d->layout = new QVBoxLayout(this);
    d->layout->setContentsMargins(0, 0, 0, 0);
    if (content)
        d->layout->addWidget(content);

    d->fade = new QPropertyAnimation(this, "windowOpacity", this);
    d->fade->setDuration(DefaultFadeMs);
    connect(d->fade, &QPropertyAnimation::finished, this, [this]() {
        if (!d->hiding)
            return;
        d->hiding = false;
        hide();
        reportClosed(d->hideReason);
    });

    d->autoHide = new QTimer(this);
    d->autoHide->setSingleShot(true);
    d->autoHide->setInterval(DefaultAutoHideMs);
    connect(d->autoHide, &QTimer::timeout, this, [this]() {
        d->hideReason = CloseReason::TimedOut;
        SmoothHide();
    });
    if (!autoHide)
        d->autoHide->setInterval(-1);
}

NotificationPopup::~NotificationPopup()
{
    d->fade->stop();
    if (d->content) {
        d->layout->removeWidget(d->content);
        d->content->setParent(nullptr);
    }
}

int NotificationPopup::FadeDuration() const
{
    return d->fade->duration();
}

void NotificationPopup::SetFadeDuration(int milliseconds)
{
    d->fade->setDuration(milliseconds);
}

int NotificationPopup::AutoHideTimeout() const
{
    return d->autoHide->interval();
}

void NotificationPopup::SetAutoHideTimeout(int milliseconds)
{
    d->autoHide->setInterval(milliseconds);
}

void NotificationPopup::SetOnClosedCallback(std::function<void(CloseReason)> callback)
{
    d->onClosed = std::move(callback);
}

void NotificationPopup::place()
{
    adjustSize();
    const QScreen* screen = QGuiApplication::primaryScreen();
    if (!screen)
        return;
    const QRect area = screen->availableGeometry();
    const int x = layoutDirection() == Qt::RightToLeft ? area.left() + ScreenMargin
                                                       : area.right() - width() - ScreenMargin + 1;
    move(x, area.bottom() - height() - ScreenMargin + 1);
}

void NotificationPopup::SmoothShow()
{
    d->hiding = false;
    d->hideReason = CloseReason::Hidden;
    d->fade->stop();
    place();
    setWindowOpacity(0.0);
    show();
    d->open = true;
    d->fade->setStartValue(0.0);
    d->fade->setEndValue(1.0);
    d->fade->start();
    if (d->autoHide->interval() > 0)
        d->autoHide->start();
}

void NotificationPopup::SmoothHide()
{
    if (!d->open || d->hiding)
        return;
    d->autoHide->stop();
    d->hiding = true;
    d->fade->stop();
    d->fade->setStartValue(windowOpacity());
    d->fade->setEndValue(0.0);
    d->fade->start();
}

void NotificationPopup::closeEvent(QCloseEvent* event)
{
    d->autoHide->stop();
    d->fade->stop();
    d->hiding = false;
    QWidget::closeEvent(event);
    if (event->isAccepted())
        reportClosed(CloseReason::ClosedByUser);
}

void NotificationPopup::reportClosed(CloseReason reason)
{
    if (!d->open)
        return;
    d->open = false;
    if (d->onClosed)
        d->onClosed(reason);
}

} // namespace Ostrel::DesktopNotification
