#pragma once

#include <string>

namespace Ostrel::App {

/// Hears, synchronously, that the locale or the theme changed.
class ILookAndFeelObserver
{
public:
    virtual ~ILookAndFeelObserver() = default;
    virtual void OnLocaleChanged(const std::string& locale) = 0;
    virtual void OnThemeChanged(const std::string& theme) = 0;
};

} // namespace Ostrel::App
