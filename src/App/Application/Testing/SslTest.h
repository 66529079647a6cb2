#pragma once

#include "App/Application/Testing/ITest.h"
#include "App/Application/ostrel_app_export.h"

namespace Ostrel::App {

/// "--test-ssl-disable" / "--test-ssl-enable" (aliases "--ssl-disable", "--ssl-enable"): the scheme
/// that links prefer where either works. Acts at registration, before the first URL is made.
class OSTREL_APP_EXPORT SslTest : public ITest
{
public:
    /// Throws std::runtime_error when both options are given.
    void initialize(const QCommandLineParser& parser) override;
    void run(const QCommandLineParser& parser) override;
    QList<QCommandLineOption> getCLO() const override;
};

} // namespace Ostrel::App
