#pragma once

#include "ProbeRunner.h"

#include <QProcess>
#include <QtTest>

// Runs the harness probe (a child process) with a command line and reads its "key=value" lines.
struct ProbeResult : Ostrel::Test::ProbeRunner::Result
{
    QString decoded(const QString& key) const
    {
        return QString::fromUtf8(QByteArray::fromBase64(values.value(key).toLatin1()));
    }
};

inline QProcessEnvironment probeEnvironment(const QString& dataHome)
{
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.remove(QStringLiteral("OSTREL_QT_WARNINGS_FAIL"));
    env.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
    env.insert(QStringLiteral("QT_QUICK_BACKEND"), QStringLiteral("software"));
    env.insert(QStringLiteral("LC_ALL"), QStringLiteral("C.UTF-8"));
    // The probe's data folder (dumps, pictures) is the test's own.
    env.insert(QStringLiteral("XDG_DATA_HOME"), dataHome);
    env.insert(QStringLiteral("XDG_CONFIG_HOME"), dataHome + QStringLiteral("/config"));
    // In a sanitizer build the crash test's segmentation fault must reach the system as one, as in
    // a shipped build, instead of ending in the sanitizer's own report.
    if (env.contains(QStringLiteral("ASAN_OPTIONS")))
        env.insert(QStringLiteral("ASAN_OPTIONS"),
                   env.value(QStringLiteral("ASAN_OPTIONS")) + QStringLiteral(":handle_segv=0"));
    return env;
}

inline ProbeResult runProbe(const QStringList& arguments, QProcessEnvironment env)
{
    Ostrel::Test::ProbeRunner runner(QStringLiteral(TESTING_PROBE));
    runner.environment() = std::move(env);
    ProbeResult result;
    // Bounded: a probe that hangs fails its row within seconds.
    static_cast<Ostrel::Test::ProbeRunner::Result&>(result) = runner.run(arguments, 20000);
    return result;
}
