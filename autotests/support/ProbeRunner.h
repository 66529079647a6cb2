#pragma once

#include <QMap>
#include <QProcess>
#include <QStringList>

#include <memory>

namespace Ostrel::Test {

/// Runs a helper program of the tests in a child process, for whatever ends, restarts or locks a
/// process, and reads the "key=value" lines it prints. Every run is bounded: a child that hangs is
/// killed and the result says it did not finish.
class ProbeRunner
{
public:
    struct Result
    {
        bool finished = false;
        int exitCode = -1;
        QProcess::ExitStatus exitStatus = QProcess::CrashExit;
        QMap<QString, QString> values;
        QStringList keys; // in the order the child printed them
        QString standardError;

        QString value(const QString& key) const { return values.value(key); }
    };

    explicit ProbeRunner(const QString& program);
    ~ProbeRunner();
    ProbeRunner(const ProbeRunner&) = delete;
    ProbeRunner& operator=(const ProbeRunner&) = delete;

    /// The test process's own environment (see TestEnvironment) with a fixed locale, so that no
    /// child depends on the machine's.
    static QProcessEnvironment defaultEnvironment();

    /// What the next runs get; starts as defaultEnvironment().
    QProcessEnvironment& environment();

    Result run(const QStringList& arguments, int timeoutMs = 60000) const;

private:
    class Impl;
    std::unique_ptr<Impl> d;
};

} // namespace Ostrel::Test
