#include "Foundation/AppendFile.h"

#include "Foundation/UserOnlyFiles.h"
#include "Foundation/Utf8.h"

#include <glog/logging.h>

#include <QFile>
#include <QFileInfo>

#include <mutex>

namespace Ostrel::Core {

namespace {

constexpr qint64 DefaultSizeCap = 10 * 1024 * 1024;

bool endsWithNewline(const QString& path)
{
    // Only a regular file has a last line; a device has no end to read.
    QFile reader(path);
    if (!QFileInfo(path).isFile() || !reader.open(QIODevice::ReadOnly) || reader.size() == 0)
        return true;
    char last = '\n';
    return !reader.seek(reader.size() - 1) || !reader.getChar(&last) || last == '\n';
}

} // namespace

class AppendFile::Impl
{
public:
    Impl(const QString& path, qint64 cap) : file(path), sizeCap(cap > 0 ? cap : defaultSizeCap()) {}

    bool open()
    {
        if (file.isOpen())
            return true;
        if (!UserOnlyFiles::prepareFile(file.fileName()))
            return fail("the file or its folder can not be created");
        // Unbuffered and appending: each write() is one record at the end, whoever else writes.
        // A device ("/dev/full" in tests) has no end to append at, and Qt warns when asked to.
        QIODevice::OpenMode mode = QIODevice::WriteOnly | QIODevice::Unbuffered;
        if (QFileInfo(file.fileName()).isFile())
            mode |= QIODevice::Append;
        if (!file.open(mode))
            return fail(file.errorString());
        if (!endsWithNewline(file.fileName()) && file.write("\n", 1) != 1) {
            file.close();
            return fail(file.errorString());
        }
        return true;
    }

    void rotateIfFull(qint64 incoming)
    {
        const qint64 size = file.size();
        if (size == 0 || size + incoming <= sizeCap)
            return;
        file.close();
        const QString older = file.fileName() + QStringLiteral(".1");
        QFile::remove(older);
        if (!QFile::rename(file.fileName(), older))
            LOG(WARNING) << "Could not rotate " << Util::QStringToUtf8(file.fileName())
                         << " past its size cap of " << sizeCap << " bytes; it keeps growing";
    }

    bool fail(const QString& reason)
    {
        if (!failing)
            LOG(WARNING) << "Could not write to " << Util::QStringToUtf8(file.fileName()) << ": "
                         << Util::QStringToUtf8(reason) << "; records are lost until a write works again";
        failing = true;
        return false;
    }

    std::mutex mutex;
    QFile file;
    const qint64 sizeCap;
    bool failing = false;
};

AppendFile::AppendFile(const QString& filePath, qint64 sizeCap) : d(std::make_unique<Impl>(filePath, sizeCap))
{
}

AppendFile::~AppendFile() = default;

qint64 AppendFile::defaultSizeCap()
{
    bool ok = false;
    const qint64 fromEnvironment = qgetenv("OSTREL_FILE_SIZE_CAP").toLongLong(&ok);
    return ok && fromEnvironment > 0 ? fromEnvironment : DefaultSizeCap;
}

QString AppendFile::filePath() const
{
    return d->file.fileName();
}

qint64 AppendFile::sizeCap() const
{
    return d->sizeCap;
}

bool AppendFile::append(const QByteArray& record)
{
    std::lock_guard<std::mutex> lock(d->mutex);
    if (!d->open())
        return false;
    d->rotateIfFull(record.size());
    if (!d->open())
        return false;
    if (d->file.write(record) != record.size()) {
        // Whatever part reached the disk is ended when the file opens again.
        const QString reason = d->file.errorString();
        d->file.close();
        return d->fail(reason);
    }
    if (d->failing)
        LOG(INFO) << "Writing to " << Util::QStringToUtf8(d->file.fileName()) << " works again";
    d->failing = false;
    return true;
}

void AppendFile::close()
{
    std::lock_guard<std::mutex> lock(d->mutex);
    d->file.close();
}

} // namespace Ostrel::Core
