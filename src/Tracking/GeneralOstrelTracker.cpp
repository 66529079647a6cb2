#include "Tracking/GeneralOstrelTracker.h"

#include "Foundation/AppendFile.h"
#include "Foundation/PersonalDataMask.h"
#include "Foundation/Utf8.h"

#include <QDateTime>
#include <QJsonDocument>
#include <QJsonObject>
#include <QStandardPaths>

namespace Ostrel::Tracking {

namespace {

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
    Impl(const QString& path, qint64 sizeCap) : file(path, sizeCap) {}

    Core::AppendFile file;
};

GeneralOstrelTracker::GeneralOstrelTracker(const QString& filePath, qint64 sizeCap)
    : d(std::make_unique<Impl>(filePath.isEmpty() ? defaultFilePath() : filePath, sizeCap))
{
}

GeneralOstrelTracker::~GeneralOstrelTracker() = default;

QString GeneralOstrelTracker::defaultFilePath()
{
    return QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation) +
           QStringLiteral("/tracking.jsonl");
}

QString GeneralOstrelTracker::filePath() const
{
    return d->file.filePath();
}

void GeneralOstrelTracker::sendEvent(const std::string& name,
                                     const std::map<std::string, std::string>& params)
{
    // Every value passes the mask here, whoever filled it in: a field that quotes a URL or an error
    // text cannot carry the user's name or address into the file.
    QJsonObject jsonParams;
    for (const auto& [key, value] : params)
        jsonParams.insert(Util::Utf8ToQString(key), Core::PersonalDataMask::mask(Util::Utf8ToQString(value)));
    QJsonObject event;
    event.insert(QStringLiteral("time"), timestamp());
    event.insert(QStringLiteral("event"), Util::Utf8ToQString(name));
    event.insert(QStringLiteral("params"), jsonParams);
    // The file writes the line whole, or not at all and says so once.
    d->file.append(QJsonDocument(event).toJson(QJsonDocument::Compact) + '\n');
}

} // namespace Ostrel::Tracking
