#pragma once

#include <QObject>

#include <memory>

namespace Ostrel::App {

class Application;
class ILifetimeManager;
class ISplash;

/// Keeps the host's splash until the start and dismisses it at the start, or earlier when the
/// application first becomes active. It is deleted through the event loop once the start is done.
class SplashController : public QObject
{
    Q_OBJECT
public:
    SplashController(Application* application, ILifetimeManager& lifetimeManager,
                     std::shared_ptr<ISplash> splash);
    ~SplashController() override;

    std::shared_ptr<ISplash> splash() const { return m_splash; }
    void setSplash(const std::shared_ptr<ISplash>& splash) { m_splash = splash; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    Application* m_application;
    std::shared_ptr<ISplash> m_splash;
};

} // namespace Ostrel::App
