#include "Tracking/GeneralOstrelTracker.h"

#include <glog/logging.h>

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QStandardPaths>

#include <mutex>

namespace Ostrel::Tracking {

namespace {

QString fromUtf8(const std::string& text)
{
    return QString::fromUtf8(text.data(), static_cast<int>(text.size()));
}

QString timestamp()
{
    // A local QDateTime prints without its offset; one with an explicit offset prints it.
    QDateTime now = QDateTime::currentDateTime();
    now.setOffsetFromUtc(now.offsetFromUtc());
    return now.toString(Qt::ISODateWithMs);
}

} // namespace

class GeneralOstrelTracker::Impl
{
public:
    bool ensureOpen()
    {
        if (file.isOpen())
            return true;
        QDir().mkpath(QFileInfo(file.fileName()).absolutePath());
        if (file.open(QIODevice::WriteOnly | QIODevice::Append))
            return true;
        if (!openFailureReported) {
            openFailureReported = true;
            LOG(WARNING) << "Tracking file " << file.fileName().toStdString() << " can not be opened ("
                         << file.errorString().toStdString() << "); events are dropped";
        }
        return false;
    }

    std::mutex mutex;
    QFile file;
    bool openFailureReported = false;
};

GeneralOstrelTracker::GeneralOstrelTracker(const QString& filePath) : d(std::make_unique<Impl>())
{
    d->file.setFileName(filePath.isEmpty() ? defaultFilePath() : filePath);
}

GeneralOstrelTracker::~GeneralOstrelTracker() = default;

QString GeneralOstrelTracker::defaultFilePath()
{
    return QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation) +
           QStringLiteral("/tracking.jsonl");
}

QString GeneralOstrelTracker::filePath() const
{
    return d->file.fileName();
}

void GeneralOstrelTracker::sendEvent(const std::string& name,
                                     const std::map<std::string, std::string>& params)
{
    QJsonObject jsonParams;
    for (const auto& [key, value] : params)
        jsonParams.insert(fromUtf8(key), fromUtf8(value));
    QJsonObject event;
    event.insert(QStringLiteral("time"), timestamp());
    event.insert(QStringLiteral("event"), fromUtf8(name));
    event.insert(QStringLiteral("params"), jsonParams);
    const QByteArray line = QJsonDocument(event).toJson(QJsonDocument::Compact) + '\n';

    std::lock_guard<std::mutex> lock(d->mutex);
    if (!d->ensureOpen())
        return;
    // One write and a flush per line: a reader never sees half an event, and a crash loses none.
    if (d->file.write(line) != line.size() || !d->file.flush()) {
        LOG(WARNING) << "Tracking event \"" << name << "\" could not be written to "
                     << d->file.fileName().toStdString() << ": " << d->file.errorString().toStdString();
        d->file.close();
    }
}

} // namespace Ostrel::Tracking
