#pragma once

#include <QString>

/// Whether another process writes `path` as its glog file right now. glog holds a lock on a log
/// file whose name has no time stamp, and a second process cannot open it: a second instance of
/// the host then logs to a file of its own.
bool isLogFileTakenByAnotherProcess(const QString& path);
