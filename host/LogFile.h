#pragma once

#include <QString>

/// Takes `path` as this process's glog file: false when another process writes it already. glog
/// holds a lock on a log file whose name has no time stamp, and a second process cannot open it,
/// so a second instance of the host logs to a file of its own. The claim is the same lock, taken
/// here and held for the life of the process: of several instances that start together exactly
/// one gets the file, instead of each seeing it free and all but one failing later in glog.
bool claimLogFile(const QString& path);
