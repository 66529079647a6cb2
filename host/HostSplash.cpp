#include "HostSplash.h"

#include "SplashWindow.h"

HostSplash::HostSplash(const QString& title) : m_title(title) {}
HostSplash::~HostSplash() = default;

void HostSplash::show()
{
    if (!m_screen)
        m_screen = std::make_unique<SplashWindow>(m_title);
    m_screen->show();
}

void HostSplash::dismiss()
{
    // Called once when the application first becomes active and again at the start.
    if (m_screen)
        m_screen->close();
}
