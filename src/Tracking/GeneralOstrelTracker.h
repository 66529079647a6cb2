#pragma once

#include "Tracking/IApplicationTracker.h"
#include "Tracking/ostrel_tracking_export.h"

#include <QString>

#include <memory>

namespace Ostrel::Tracking {

/// Appends every event to a local file as one JSON object per line:
///   {"event":"<name>","params":{"<key>":"<value>",...},"time":"2024-05-01T12:00:00.123+02:00"}
/// (ISO-8601 local time with milliseconds and offset; "Z" when the offset is zero). Whatever ships
/// the events elsewhere reads this file. Safe to call from several threads: lines never interleave.
/// The file is an Ostrel::Core::AppendFile: user-only, each line written whole, a cut last line
/// ended before the next, renamed to "tracking.jsonl.1" past its size cap. An event that can not
/// be written is dropped; one WARNING line says so until writing works again.
class OSTREL_TRACKING_EXPORT GeneralOstrelTracker : public IApplicationTracker
{
public:
    /// Writes to `filePath`, creating its folder when needed; empty for defaultFilePath().
    /// `sizeCap` in bytes, 0 for the default of AppendFile.
    explicit GeneralOstrelTracker(const QString& filePath = QString(), qint64 sizeCap = 0);
    ~GeneralOstrelTracker() override;

    /// <AppLocalDataLocation>/tracking.jsonl.
    static QString defaultFilePath();

    QString filePath() const;

    void sendEvent(const std::string& name, const std::map<std::string, std::string>& params) override;

private:
    class Impl;
    std::unique_ptr<Impl> d;
};

} // namespace Ostrel::Tracking
