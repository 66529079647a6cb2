#include "HostSplash.h"

#include <QCoreApplication>
#include <QLinearGradient>
#include <QPainter>
#include <QSplashScreen>

namespace {

QPixmap splashPicture(const QString& title)
{
    QPixmap picture(420, 240);
    QPainter painter(&picture);
    QLinearGradient gradient(0, 0, 0, picture.height());
    gradient.setColorAt(0, QColor(0x24, 0x3b, 0x55));
    gradient.setColorAt(1, QColor(0x14, 0x1e, 0x30));
    painter.fillRect(picture.rect(), gradient);
    painter.setPen(Qt::white);
    QFont font = painter.font();
    font.setPointSize(26);
    font.setBold(true);
    painter.setFont(font);
    painter.drawText(picture.rect().adjusted(0, -20, 0, -20), Qt::AlignCenter, title);
    font.setPointSize(10);
    font.setBold(false);
    painter.setFont(font);
    painter.drawText(picture.rect().adjusted(0, 60, 0, 0), Qt::AlignCenter,
                     QCoreApplication::translate("HostSplash", "Starting…"));
    return picture;
}

} // namespace

HostSplash::HostSplash(const QString& title)
    : m_title(title)
{
}
HostSplash::~HostSplash() = default;

void HostSplash::show()
{
    if (!m_screen)
        m_screen = std::make_unique<QSplashScreen>(splashPicture(m_title));
    m_screen->show();
}

void HostSplash::dismiss()
{
    // Called once when the application first becomes active and again at the start.
    if (m_screen)
        m_screen->close();
}
