#pragma once

#include "App/Application/Testing/ITest.h"

namespace Ostrel::App {

class Testing;

/// "--test-help": a dialog listing every test option of the harness.
class TestHelp : public ITest
{
public:
    explicit TestHelp(Testing* testing);
    ~TestHelp() override;

    void initialize(const QCommandLineParser& parser) override;
    void run(const QCommandLineParser& parser) override;
    QList<QCommandLineOption> getCLO() const override;

    /// The text of the dialog: "--name description" a line, the first name of each option only.
    static QString helpText(const QList<QCommandLineOption>& options);

private:
    Testing* m_testing;
};

} // namespace Ostrel::App
