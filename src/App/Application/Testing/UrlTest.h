#pragma once

#include "App/Application/Testing/ITest.h"
#include "App/Application/ostrel_app_export.h"

#include <chrono>
#include <list>
#include <memory>
#include <string>

namespace Ostrel::App {

class ICustomizationManager;
class ILinksManager;
class ILookAndFeelManager;

/// The product's outgoing links under test:
///  - "--test-dump-urls" writes the URL of every link key in every chosen locale to
///    <module>-url-dump.csv in the application's data folder, "locale;key;url;" a line;
///  - "--test-open-urls" also opens them one by one, from ten seconds after the walk on,
///    "--test-open-urls-delay" milliseconds apart;
///  - "--test-log-urls=FILE" writes every web link the product opens to FILE instead of a browser.
class OSTREL_APP_EXPORT UrlTest : public ITest
{
public:
    UrlTest(const std::shared_ptr<ICustomizationManager>& customizationManager,
            const std::shared_ptr<ILookAndFeelManager>& lookAndFeelManager,
            const std::shared_ptr<ILinksManager>& linksManager);
    ~UrlTest() override;
    UrlTest(const UrlTest&) = delete;
    UrlTest& operator=(const UrlTest&) = delete;

    void initialize(const QCommandLineParser& parser) override;
    void run(const QCommandLineParser& parser) override;
    QList<QCommandLineOption> getCLO() const override;

    /// Where the dump goes.
    QString dumpFilePath() const;

    /// Opens this test's URLs on a schedule of its own, the first one `delay` after the walk,
    /// instead of on the schedule the process shares, which starts ten seconds after the first walk.
    void setFirstOpenDelay(std::chrono::milliseconds delay);

private:
    class Impl;
    std::unique_ptr<Impl> d;
};

} // namespace Ostrel::App
