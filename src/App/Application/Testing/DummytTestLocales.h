#pragma once

#include "App/Application/Testing/ITest.h"
#include "App/Application/ostrel_app_export.h"

#include <list>
#include <memory>
#include <string>

namespace Ostrel::App {

class ILookAndFeelManager;

/// "--test-custom-locales=a,b": the locales the URL and nag tests walk. Not registered alone:
/// both tests carry one and list its option after their own.
class OSTREL_APP_EXPORT DummytTestLocales : public ITest
{
public:
    void initialize(const QCommandLineParser& parser) override;
    void run(const QCommandLineParser& parser) override;
    QList<QCommandLineOption> getCLO() const override;

    /// The installed locales that the option asks for, "ru_RU", "de_DE" and "en_US" first. The
    /// order of the option's list doesn't matter; a locale that isn't installed is left out.
    std::list<std::string>
    selectedLocales(const QCommandLineParser& parser,
                    const std::shared_ptr<ILookAndFeelManager>& lookAndFeelManager) const;
};

} // namespace Ostrel::App
