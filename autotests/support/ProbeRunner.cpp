#include "ProbeRunner.h"

namespace Ostrel::Test {

class ProbeRunner::Impl
{
public:
    QString program;
    QProcessEnvironment environment;
};

ProbeRunner::ProbeRunner(const QString& program)
    : d(std::make_unique<Impl>(Impl{program, defaultEnvironment()}))
{
}

ProbeRunner::~ProbeRunner() = default;

QProcessEnvironment ProbeRunner::defaultEnvironment()
{
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.insert(QStringLiteral("LC_ALL"), QStringLiteral("C.UTF-8"));
    return env;
}

QProcessEnvironment& ProbeRunner::environment()
{
    return d->environment;
}

ProbeRunner::Result ProbeRunner::run(const QStringList& arguments, int timeoutMs) const
{
    QProcess process;
    process.setProcessEnvironment(d->environment);
    process.start(d->program, arguments);
    Result result;
    if (!process.waitForFinished(timeoutMs)) {
        process.kill();
        process.waitForFinished();
        result.standardError = QString::fromUtf8(process.readAllStandardError());
        return result;
    }
    result.finished = true;
    result.exitCode = process.exitCode();
    result.exitStatus = process.exitStatus();
    result.standardError = QString::fromUtf8(process.readAllStandardError());
    const QStringList lines = QString::fromUtf8(process.readAllStandardOutput()).split(QLatin1Char('\n'));
    for (const QString& line : lines) {
        const int equals = line.indexOf(QLatin1Char('='));
        if (equals > 0) {
            result.values.insert(line.left(equals), line.mid(equals + 1));
            result.keys.append(line.left(equals));
        }
    }
    return result;
}

} // namespace Ostrel::Test
