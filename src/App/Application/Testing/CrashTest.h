#pragma once

#include "App/Application/Testing/ITest.h"
#include "App/Application/ostrel_app_export.h"

#include <QStringList>

namespace Ostrel::App {

/// "--test-crash-after=MS" brings the application down MS milliseconds after the start:
/// "--test-crash-reason" segfault or exception, "--test-crash-thread" main or background.
/// An unsupported value is logged and disarms the test.
class OSTREL_APP_EXPORT CrashTest : public ITest
{
public:
    void initialize(const QCommandLineParser& parser) override;
    void run(const QCommandLineParser& parser) override;
    QList<QCommandLineOption> getCLO() const override;

    static const QStringList& crashReasons();
    static const QStringList& crashThreads();
};

} // namespace Ostrel::App
