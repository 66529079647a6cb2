#pragma once

#include <QMap>
#include <QProcess>
#include <QtTest>

// Runs the kernel probe (a child process) and reads its "key=value" lines.
struct ProbeResult
{
    int exitCode = -1;
    QProcess::ExitStatus exitStatus = QProcess::CrashExit;
    QMap<QString, QString> values;
    QString standardError;
};

inline QProcessEnvironment probeEnvironment()
{
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    // The probe provokes Qt's own complaints on purpose in some scenarios.
    env.remove(QStringLiteral("OSTREL_QT_WARNINGS_FAIL"));
    env.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
    env.insert(QStringLiteral("LC_ALL"), QStringLiteral("C.UTF-8"));
    return env;
}

inline ProbeResult runProbe(const QStringList& arguments, const QProcessEnvironment& env = probeEnvironment())
{
    QProcess process;
    process.setProcessEnvironment(env);
    process.start(QStringLiteral(KERNEL_PROBE), arguments);
    ProbeResult result;
    if (!process.waitForFinished(60000)) {
        process.kill();
        process.waitForFinished();
        return result;
    }
    result.exitCode = process.exitCode();
    result.exitStatus = process.exitStatus();
    result.standardError = QString::fromUtf8(process.readAllStandardError());
    const QStringList lines = QString::fromUtf8(process.readAllStandardOutput()).split(QLatin1Char('\n'));
    for (const QString& line : lines) {
        const int equals = line.indexOf(QLatin1Char('='));
        if (equals > 0)
            result.values.insert(line.left(equals), line.mid(equals + 1));
    }
    return result;
}
