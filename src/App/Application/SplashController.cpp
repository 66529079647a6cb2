#include "App/Application/SplashController_p.h"

#include "App/Application/Application.h"
#include "App/Application/ISplash.h"
#include "Interfaces/ILifetimeManager.h"

#include <QEvent>

namespace Ostrel::App {

SplashController::SplashController(Application* application, ILifetimeManager& lifetimeManager,
                                   std::shared_ptr<ISplash> splash)
    : QObject(application), m_application(application), m_splash(std::move(splash))
{
    application->installEventFilter(this);
    lifetimeManager.addOnStartCallback([this]() {
        if (m_splash)
            m_splash->dismiss();
    });
}

SplashController::~SplashController() = default;

bool SplashController::eventFilter(QObject* watched, QEvent* event)
{
    if (m_splash && event->type() == QEvent::ApplicationStateChange) {
        const auto lifetime = m_application->get<ILifetimeManager>();
        if (lifetime && !lifetime->isStarted() &&
            QGuiApplication::applicationState() == Qt::ApplicationActive)
            m_splash->dismiss();
    }
    return QObject::eventFilter(watched, event);
}

} // namespace Ostrel::App
