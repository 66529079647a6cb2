#pragma once

#include "App/Application/ISplash.h"

#include <memory>

class QSplashScreen;

/// The host's splash screen: a picture drawn at run time, shown until the shell dismisses it.
class HostSplash : public Ostrel::App::ISplash
{
public:
    HostSplash();
    ~HostSplash() override;

    void show() override;
    void dismiss() override;

private:
    std::unique_ptr<QSplashScreen> m_screen;
};
