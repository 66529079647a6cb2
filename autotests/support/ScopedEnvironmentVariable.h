#pragma once

#include <QByteArray>
#include <QtGlobal>

namespace Ostrel::Test {

/// Gives a test an environment variable of its own and puts the process's back when it goes,
/// also when a failed check leaves the test function early, so that the next test starts clean.
class ScopedEnvironmentVariable
{
public:
    explicit ScopedEnvironmentVariable(const char* name)
        : m_name(name), m_wasSet(qEnvironmentVariableIsSet(name)), m_saved(qgetenv(name))
    {
    }
    ~ScopedEnvironmentVariable() { restore(); }
    ScopedEnvironmentVariable(const ScopedEnvironmentVariable&) = delete;
    ScopedEnvironmentVariable& operator=(const ScopedEnvironmentVariable&) = delete;

    void set(const QByteArray& value) { qputenv(m_name, value); }
    void unset() { qunsetenv(m_name); }
    /// The value the process had before; for a test that must see it again before its end.
    void restore()
    {
        if (m_wasSet)
            qputenv(m_name, m_saved);
        else
            qunsetenv(m_name);
    }

private:
    const char* m_name;
    bool m_wasSet;
    QByteArray m_saved;
};

} // namespace Ostrel::Test
