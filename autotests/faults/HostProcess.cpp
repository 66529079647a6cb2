#include "HostProcess.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>

QString HostProcess::Product()
{
    // The organisation and application names of the host's built-in customization.
    return QStringLiteral("Ostrel/Ostrel Host");
}

QString HostProcess::OwnNag()
{
    return QStringLiteral("qrc:/NagScreen/app_start/main.qml");
}

bool HostProcess::MakeRuntimeFolder(const QString& path)
{
    return QDir().mkpath(path) &&
           QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

HostProcess::HostProcess(const QString& root, const QString& runtime) : m_root(root), m_runtime(runtime)
{
    QDir().mkpath(m_root);
}

HostProcess::~HostProcess()
{
    stop();
}

void HostProcess::addEnvironment(const QString& entry)
{
    m_environment << entry;
}

void HostProcess::start(const QStringList& arguments)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
    environment.insert(QStringLiteral("QT_QUICK_BACKEND"), QStringLiteral("software"));
    environment.insert(QStringLiteral("XDG_RUNTIME_DIR"), m_runtime);
    environment.insert(QStringLiteral("XDG_DATA_HOME"), m_root + QStringLiteral("/data"));
    environment.insert(QStringLiteral("XDG_CONFIG_HOME"), m_root + QStringLiteral("/config"));
    environment.insert(QStringLiteral("XDG_CACHE_HOME"), m_root + QStringLiteral("/cache"));
    environment.insert(QStringLiteral("HOME"), m_root);
    // Every line reaches the file at once, so that the test reads what happened so far.
    environment.insert(QStringLiteral("GLOG_logbufsecs"), QStringLiteral("0"));
    environment.remove(QStringLiteral("OSTREL_QT_WARNINGS_FAIL"));
    for (const QString& entry : m_environment)
        environment.insert(entry.section(QLatin1Char('='), 0, 0), entry.section(QLatin1Char('='), 1));
    m_process.setProcessEnvironment(environment);
    m_process.setProcessChannelMode(QProcess::SeparateChannels);
    m_process.start(QStringLiteral(OSTREL_HOST), arguments);
    m_process.waitForStarted(10000);
}

void HostProcess::stop()
{
    if (m_process.state() == QProcess::NotRunning)
        return;
    m_process.terminate();
    if (!m_process.waitForFinished(10000)) {
        m_process.kill();
        m_process.waitForFinished(5000);
    }
}

bool HostProcess::waitForExit(int timeoutMs)
{
    return QTest::qWaitFor([this]() { return m_process.state() == QProcess::NotRunning; }, timeoutMs);
}

bool HostProcess::isRunning() const
{
    return m_process.state() != QProcess::NotRunning;
}

int HostProcess::exitCode() const
{
    return m_process.exitStatus() == QProcess::NormalExit ? m_process.exitCode() : -1;
}

QString HostProcess::standardOutput() const
{
    m_stdout += QString::fromUtf8(m_process.readAllStandardOutput());
    return m_stdout;
}

QString HostProcess::standardError() const
{
    m_stderr += QString::fromUtf8(m_process.readAllStandardError());
    return m_stderr;
}

QString HostProcess::log() const
{
    // Standard error is read so that the pipe never fills; the file has every line of it too.
    standardError();
    QString text;
    QDirIterator files(m_root + QStringLiteral("/data"), {QStringLiteral("*.log")}, QDir::Files,
                       QDirIterator::Subdirectories);
    while (files.hasNext()) {
        QFile file(files.next());
        if (file.open(QIODevice::ReadOnly))
            text += QString::fromUtf8(file.readAll());
    }
    return text;
}

bool HostProcess::waitForLog(const QString& text, int timeoutMs)
{
    return QTest::qWaitFor([&]() { return log().contains(text); }, timeoutMs);
}

QStringList HostProcess::trackingEvents() const
{
    QStringList events;
    QDirIterator files(m_root + QStringLiteral("/data"), {QStringLiteral("tracking.jsonl")}, QDir::Files,
                       QDirIterator::Subdirectories);
    while (files.hasNext()) {
        QFile file(files.next());
        if (!file.open(QIODevice::ReadOnly))
            continue;
        for (const QByteArray& line : file.readAll().split('\n')) {
            const QJsonObject event = QJsonDocument::fromJson(line).object();
            if (!event.isEmpty())
                events << event.value(QStringLiteral("event")).toString();
        }
    }
    return events;
}
