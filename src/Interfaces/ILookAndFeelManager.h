#pragma once

#include "Interfaces/ILookAndFeelObserver.h"

#include <list>
#include <string>

namespace Ostrel::App {

/// Themes and locales: which are installed, which are current, and the stylesheet composed for
/// the current theme. The host applies the stylesheet; the manager only composes it.
class ILookAndFeelManager
{
public:
    /// What a theme is made of; every entry is a path QFile can open, ":/" paths included.
    struct ThemeDescription
    {
        std::list<std::string> styleFiles;
        std::list<std::string> macroFiles;
        std::list<std::string> fontManifestFiles;
    };

    virtual ~ILookAndFeelManager() = default;
    virtual void Initialize(const std::string& locale, const std::string& theme) = 0;
    virtual const std::string& GetCurrentLocale() const = 0;
    virtual const std::list<std::string>& GetLocales() const = 0;
    virtual const std::list<std::string>& GetThemes() const = 0;
    virtual void SetLocale(const std::string& locale) = 0;
    virtual void SetTheme(const std::string& theme) = 0;
    virtual const std::string& GetCurrentTheme() const = 0;
    virtual std::string GetLocalizedThemeName(const std::string& theme) const = 0;
    virtual void ApplyTheme(const ThemeDescription& description) = 0;
    virtual std::string GetUnitedStylesheet() = 0;
    virtual std::string GetDefaultLocale() const = 0;
    virtual void RegisterObserver(ILookAndFeelObserver* observer) = 0;
    virtual void UnregisterObserver(ILookAndFeelObserver* observer) = 0;
};

} // namespace Ostrel::App
