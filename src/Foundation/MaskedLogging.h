#pragma once

#include "Foundation/ostrel_foundation_export.h"

namespace Ostrel::Core {

/// Puts every line glog writes, to its files and to standard error, through PersonalDataMask,
/// whoever logged it: a log line that quotes a URL or an error text cannot carry the user's name
/// or address out of the process.
///
/// install() wraps glog's file logger of every severity, and takes over standard error: glog
/// itself writes nothing there any more, and the lines it would have written (at
/// consoleThreshold() and above) are written masked instead. Call it once, right after
/// google::InitGoogleLogging(); a later call does nothing. Until then consoleThreshold() and
/// setConsoleThreshold() read and set FLAGS_stderrthreshold.
///
/// Not covered: lines logged before install(), sinks a product adds itself (a LogSink sees the
/// line as it was logged), and FLAGS_logtostderr or FLAGS_alsologtostderr set after install():
/// set the console threshold instead.
class OSTREL_FOUNDATION_EXPORT MaskedLogging
{
public:
    MaskedLogging() = delete;

    /// Everything to standard error (INFO) when FLAGS_logtostderr was set, and then no log files
    /// until a destination is chosen; otherwise FLAGS_stderrthreshold.
    static void install();
    static bool isInstalled();

    /// The least severity that reaches standard error.
    static int consoleThreshold();
    static void setConsoleThreshold(int severity);
};

} // namespace Ostrel::Core
