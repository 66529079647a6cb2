#pragma once

#include "App/Application/ostrel_app_export.h"
#include "Foundation/ioPath.h"
#include "Interfaces/ILookAndFeelManager.h"

#include <QStringList>

#include <list>
#include <memory>
#include <string>

class IQssPreprocessor;

namespace Ostrel::App {

/// Themes and locales installed below `path`/"resources" ("themes"/<theme>, "locales"/<locale>).
///
/// A theme is a folder with a title file and compiled Qt resources (".rcc"); a resource file with
/// base name b holds its files under ":/b/": "style.qss", "fonts_win.qss", "fonts.json" (the
/// "@" macros), "fonts.manifest" (fonts to load). SetTheme registers the resources and composes
/// one stylesheet from them and the library's ":/productStyle.qss"; the host applies it.
/// A locale is a folder of ".qm" files; SetLocale picks the best installed locale for the wish
/// and the system's languages and swaps the translators.
///
/// Broken or missing theme data never throws: the manager logs and goes on with what it could read.
class OSTREL_APP_EXPORT LookAndFeelManager : public ILookAndFeelManager
{
public:
    /// `resourceBaseNames` restricts (and orders) the resource and translation files; empty means
    /// every ".rcc"/".qm" found. `unused` is kept for callers that pass a second list.
    LookAndFeelManager(const Core::ioPath& path, const std::string& themeTitleFileName,
                       const std::list<std::string>& resourceBaseNames, const std::list<std::string>& unused);
    ~LookAndFeelManager() override;
    LookAndFeelManager(const LookAndFeelManager&) = delete;
    LookAndFeelManager& operator=(const LookAndFeelManager&) = delete;

    void Initialize(const std::string& locale, const std::string& theme) override;
    const std::string& GetCurrentLocale() const override;
    const std::list<std::string>& GetLocales() const override;
    const std::list<std::string>& GetThemes() const override;
    void SetLocale(const std::string& locale) override;
    void SetTheme(const std::string& theme) override;
    const std::string& GetCurrentTheme() const override;
    std::string GetLocalizedThemeName(const std::string& theme) const override;
    void ApplyTheme(const ThemeDescription& description) override;
    std::string GetUnitedStylesheet() override;
    /// "unknown": no fixed fallback; a subclass may name one.
    std::string GetDefaultLocale() const override;
    void RegisterObserver(ILookAndFeelObserver* observer) override;
    void UnregisterObserver(ILookAndFeelObserver* observer) override;

    /// Takes effect at the next ApplyTheme; nothing is recomposed now.
    void SetQssPreprocessor(const std::shared_ptr<IQssPreprocessor>& preprocessor);

protected:
    /// The system's preferred UI languages, most preferred first; QLocale().uiLanguages() unless a
    /// subclass (a test, a product with its own language setting) says otherwise.
    virtual QStringList GetSystemLanguages() const;

private:
    /// The system's languages as candidate locale names, in its order of preference.
    std::list<std::string> systemCandidates() const;
    std::string ValidateLocale(const std::string& requested) const;

    class Impl;
    std::unique_ptr<Impl> d;
};

} // namespace Ostrel::App
