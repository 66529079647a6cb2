#pragma once

#include <QProcess>
#include <QString>
#include <QStringList>

/// The real sample host in a process of its own: offscreen, with data, settings and cache folders
/// of its own below `root`, and the runtime folder `runtime` (shared by the hosts of one test, as
/// a user's session shares it).
class HostProcess
{
public:
    /// The product the host names its endpoint after.
    static QString Product();
    /// An address that another process may ask for: one of the host's own nags.
    static QString OwnNag();
    /// Makes `path` a runtime folder as a session has one: the user's alone.
    static bool MakeRuntimeFolder(const QString& path);

    HostProcess(const QString& root, const QString& runtime);
    ~HostProcess();
    HostProcess(const HostProcess&) = delete;
    HostProcess& operator=(const HostProcess&) = delete;

    void start(const QStringList& arguments);
    /// Ends the process if it still runs (bounded).
    void stop();
    /// Waits, at most `timeoutMs`, for the process to end by itself.
    bool waitForExit(int timeoutMs);
    bool isRunning() const;
    int exitCode() const;

    /// Everything the host printed so far on its standard output.
    QString standardOutput() const;
    /// Everything the host printed so far on its standard error (the console's warnings).
    QString standardError() const;
    /// Everything the host logged so far to its log file, every severity.
    QString log() const;
    /// Waits, at most `timeoutMs`, until the log holds `text`.
    bool waitForLog(const QString& text, int timeoutMs);
    /// The tracking events of this host, by name, in order.
    QStringList trackingEvents() const;
    /// Extra environment for this host ("NAME=value").
    void addEnvironment(const QString& entry);

private:
    QString m_root;
    QString m_runtime;
    QStringList m_environment;
    mutable QProcess m_process;
    mutable QString m_stderr;
    mutable QString m_stdout;
};
