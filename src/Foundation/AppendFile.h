#pragma once

#include "Foundation/ostrel_foundation_export.h"

#include <QByteArray>
#include <QString>

#include <memory>

namespace Ostrel::Core {

/// A user-only file that only grows by whole records, for tracking lines and crash records.
///
/// - Each record goes out in one write on an append-only handle, so records of several writers
///   never interleave.
/// - A last line cut short (by a full disk or a killed process) is ended before the next record,
///   so that the cut line never swallows the next one.
/// - Past its size cap the file is renamed to "<name>.1", replacing an older one, and starts
///   afresh: at most twice the cap stays on disk.
/// - A failed write is logged once, not once a record, until a write works again; it never
///   throws. Safe to use from several threads.
class OSTREL_FOUNDATION_EXPORT AppendFile
{
public:
    /// `sizeCap` in bytes; 0 for defaultSizeCap(). Nothing is opened or created before append().
    explicit AppendFile(const QString& filePath, qint64 sizeCap = 0);
    ~AppendFile();
    AppendFile(const AppendFile&) = delete;
    AppendFile& operator=(const AppendFile&) = delete;

    /// 10 MB, unless the environment variable OSTREL_FILE_SIZE_CAP gives a number of bytes
    /// (there for tests, which can not write 10 MB to see a rotation).
    static qint64 defaultSizeCap();

    QString filePath() const;
    qint64 sizeCap() const;

    /// Appends `record`, which should end with "\n". False when it did not reach the file.
    bool append(const QByteArray& record);
    /// Closes the handle; the next append opens the file again.
    void close();

private:
    class Impl;
    std::unique_ptr<Impl> d;
};

} // namespace Ostrel::Core
