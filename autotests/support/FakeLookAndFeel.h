#pragma once

#include "Interfaces/ILookAndFeelManager.h"

#include <list>
#include <string>

namespace Ostrel::Test {

/// A look and feel of which only the locale matters.
class FakeLookAndFeel : public App::ILookAndFeelManager
{
public:
    std::string locale = "pt_BR";
    std::list<std::string> none;
    void Initialize(const std::string&, const std::string&) override {}
    const std::string& GetCurrentLocale() const override { return locale; }
    const std::list<std::string>& GetLocales() const override { return none; }
    const std::list<std::string>& GetThemes() const override { return none; }
    void SetLocale(const std::string& value) override { locale = value; }
    void SetTheme(const std::string&) override {}
    const std::string& GetCurrentTheme() const override { return locale; }
    std::string GetLocalizedThemeName(const std::string& theme) const override { return theme; }
    void ApplyTheme(const ThemeDescription&) override {}
    std::string GetUnitedStylesheet() override { return {}; }
    std::string GetDefaultLocale() const override { return "en"; }
    void RegisterObserver(App::ILookAndFeelObserver*) override {}
    void UnregisterObserver(App::ILookAndFeelObserver*) override {}
};

} // namespace Ostrel::Test
