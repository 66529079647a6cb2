#pragma once

#include "App/Application/Testing/ITest.h"
#include "App/Application/ostrel_app_export.h"

#include <memory>

namespace Ostrel::App {

class IInternetConnectionChecker;

/// "--test-internet-disable": the product believes it is offline. Register it with
/// Testing::addTest before asking replaceIfNeeded.
class OSTREL_APP_EXPORT ConnectionTest : public ITest
{
public:
    ConnectionTest();
    ~ConnectionTest() override;
    ConnectionTest(const ConnectionTest&);
    ConnectionTest(ConnectionTest&&) noexcept;
    ConnectionTest& operator=(const ConnectionTest&);
    ConnectionTest& operator=(ConnectionTest&&) noexcept;

    void initialize(const QCommandLineParser& parser) override;
    void run(const QCommandLineParser& parser) override;
    QList<QCommandLineOption> getCLO() const override;

    /// `checker` itself, or, with the option set, an offline fake to put in its place.
    std::shared_ptr<IInternetConnectionChecker>
    replaceIfNeeded(const std::shared_ptr<IInternetConnectionChecker>& checker);

private:
    bool m_internetDisabled = false;
};

} // namespace Ostrel::App
