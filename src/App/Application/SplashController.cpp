#include "App/Application/SplashController_p.h"

#include "App/Application/Application.h"
#include "App/Application/ISplash.h"
#include "Interfaces/ILifetimeManager.h"

#include <QEvent>
#include <QPointer>

namespace Ostrel::App {

SplashController::SplashController(Application* application, ILifetimeManager& lifetimeManager,
                                   std::shared_ptr<ISplash> splash)
    : QObject(application), m_application(application), m_splash(std::move(splash))
{
    application->installEventFilter(this);
    // The product's lifetime manager may outlive this controller (and the application) and start
    // later: the callback holds the controller weakly.
    lifetimeManager.addOnStartCallback([controller = QPointer<SplashController>(this)]() {
        if (controller && controller->m_splash)
            controller->m_splash->dismiss();
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
