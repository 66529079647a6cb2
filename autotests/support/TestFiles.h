#pragma once

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QString>
#include <QStringList>

namespace Ostrel::Test {

/// The whole of a file, or nothing when it cannot be read: a test compares it with what it expects.
inline QByteArray readFile(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// Writes `bytes` as the whole of a file, its folder made first; false when any of it fails.
inline bool writeFile(const QString& path, const QByteArray& bytes)
{
    QDir().mkpath(QFileInfo(path).absolutePath());
    QFile file(path);
    return file.open(QIODevice::WriteOnly | QIODevice::Truncate) && file.write(bytes) == bytes.size();
}

/// The rows of a tab-separated table written out for a test: one list of fields a line, lines
/// that begin with "#" left out. Empty when the file cannot be read.
inline QList<QStringList> readTable(const QString& path)
{
    QList<QStringList> rows;
    for (const QString& line : QString::fromUtf8(readFile(path)).split(QLatin1Char('\n'))) {
        if (!line.isEmpty() && !line.startsWith(QLatin1Char('#')))
            rows << line.split(QLatin1Char('\t'));
    }
    return rows;
}

} // namespace Ostrel::Test
