#include "SplashWindow.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QLinearGradient>
#include <QPainter>
#include <QScreen>

SplashWindow::SplashWindow(const QString& title)
    : QWidget(nullptr, Qt::SplashScreen | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint), m_title(title)
{
    setAttribute(Qt::WA_OpaquePaintEvent);
    resize(420, 240);
    if (const QScreen* screen = QGuiApplication::primaryScreen())
        move(screen->availableGeometry().center() - rect().center());
}

void SplashWindow::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    QLinearGradient gradient(0, 0, 0, height());
    gradient.setColorAt(0, QColor(0x24, 0x3b, 0x55));
    gradient.setColorAt(1, QColor(0x14, 0x1e, 0x30));
    painter.fillRect(rect(), gradient);
    painter.setPen(Qt::white);
    QFont font = painter.font();
    font.setPointSize(26);
    font.setBold(true);
    painter.setFont(font);
    painter.drawText(rect().adjusted(0, -20, 0, -20), Qt::AlignCenter, m_title);
    font.setPointSize(10);
    font.setBold(false);
    painter.setFont(font);
    painter.drawText(rect().adjusted(0, 60, 0, 0), Qt::AlignCenter,
                     QCoreApplication::translate("HostSplash", "Starting…"));
}
