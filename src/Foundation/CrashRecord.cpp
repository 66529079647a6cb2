#include "Foundation/CrashRecord.h"

#include <boost/exception/diagnostic_information.hpp>
#include <glog/logging.h>

#include <QByteArray>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

#include <exception>
#include <mutex>

namespace Ostrel::Core {

namespace {

// Each record starts with this marker and its time stamp, so that records whose text spans
// several lines can still be told apart.
constexpr char kRecordMarker[] = "==== ";

std::string currentExceptionText()
{
    // boost's diagnostics rethrow the current exception to examine it; with none in flight
    // that rethrow would terminate the process.
    if (!std::current_exception())
        return "no exception in flight";
    std::string text = boost::current_exception_diagnostic_information(true);
    while (!text.empty() && text.back() == '\n')
        text.pop_back();
    return text;
}

// Returns an empty string on success, the reason otherwise.
QString appendRecord(const QByteArray& record)
{
    const QString path = CrashRecordPath().toQString();
    // Without a home folder Qt has no data location; a relative path would land in whatever
    // the current folder happens to be.
    if (QFileInfo(path).isRelative())
        return QStringLiteral("no application data folder");
    const QString folder = QFileInfo(path).absolutePath();
    if (!QDir().mkpath(folder))
        return QStringLiteral("cannot create folder ") + folder;
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Append | QIODevice::Unbuffered))
        return file.errorString();
    // One unbuffered write per record keeps records from different processes from interleaving.
    if (file.write(record) != record.size())
        return file.errorString();
    return QString();
}

} // namespace

void TrackCurrentException() noexcept
{
    try {
        const std::string text = currentExceptionText();
        LOG(ERROR) << "Exception recorded: " << text;

        const QByteArray stamp = QDateTime::currentDateTimeUtc().toString(Qt::ISODateWithMs).toUtf8();
        const QByteArray record = kRecordMarker + stamp + '\n' + QByteArray::fromStdString(text) + '\n';

        static std::mutex fileMutex;
        std::lock_guard<std::mutex> lock(fileMutex);
        const QString failure = appendRecord(record);
        if (!failure.isEmpty())
            LOG(ERROR) << "Could not write the crash record to " << CrashRecordPath().utf8() << ": "
                       << failure.toStdString();
    } catch (...) {
        // Out of memory, most likely: nothing more can be done safely than saying so.
        LOG(ERROR) << "Could not record the exception in flight";
    }
}

ioPath CrashRecordPath()
{
    return ioPath(QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation)) / "crash.log";
}

} // namespace Ostrel::Core
