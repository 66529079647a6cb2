#pragma once

#include "App/Application/ISplash.h"

#include <QString>

#include <memory>

class SplashWindow;

/// The host's splash screen: a picture drawn at run time, shown until the shell dismisses it.
class HostSplash : public Ostrel::App::ISplash
{
public:
    /// `title` is the product name people read.
    explicit HostSplash(const QString& title);
    ~HostSplash() override;

    void show() override;
    void dismiss() override;

private:
    QString m_title;
    std::unique_ptr<SplashWindow> m_screen;
};
