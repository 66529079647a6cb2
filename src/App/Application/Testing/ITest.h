#pragma once

#include <QCommandLineOption>
#include <QList>

class QCommandLineParser;

namespace Ostrel::App {

/// One test of the built-in harness: it declares its command line options and acts on them at two
/// moments, when it is registered and when the application starts.
class ITest
{
public:
    virtual ~ITest() = default;
    /// Once, when the test is registered.
    virtual void initialize(const QCommandLineParser& parser) = 0;
    /// Once, at the start of the application.
    virtual void run(const QCommandLineParser& parser) = 0;
    virtual QList<QCommandLineOption> getCLO() const = 0;
};

} // namespace Ostrel::App
