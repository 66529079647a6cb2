#pragma once

#include "App/Application/Testing/ITest.h"
#include "App/Application/ostrel_app_export.h"

#include <chrono>
#include <memory>

namespace Ostrel::App {

class ICustomizationManager;
class ILookAndFeelManager;
namespace NagScreen {
class IManager;
}

/// The nag screens under test:
///  - "--test-nag-screens[=action,...]" shows every nag of the map (or those actions) in every
///    chosen locale, saves a picture of each, the web addresses in "webNagUrls.txt" and the
///    declared and computed hashes in "NagHash.md", below "NagScreenshots" of the data folder or of
///    "--test-nag-screens-dir";
///  - "--test-nag-helper" opens the manual nag test window.
class OSTREL_APP_EXPORT NagTest : public ITest
{
public:
    NagTest(const std::shared_ptr<ICustomizationManager>& customizationManager,
            const std::shared_ptr<ILookAndFeelManager>& lookAndFeelManager,
            const std::shared_ptr<NagScreen::IManager>& nagManager);
    ~NagTest() override;
    NagTest(const NagTest&) = delete;
    NagTest& operator=(const NagTest&) = delete;

    void initialize(const QCommandLineParser& parser) override;
    void run(const QCommandLineParser& parser) override;
    QList<QCommandLineOption> getCLO() const override;

    /// How long a nag is on screen before its picture is taken (300 ms unless set).
    void setPictureDelay(std::chrono::milliseconds delay);

private:
    class Impl;
    std::unique_ptr<Impl> d;
};

} // namespace Ostrel::App
