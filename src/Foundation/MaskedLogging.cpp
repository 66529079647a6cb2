#include "Foundation/MaskedLogging.h"

#include "Foundation/PersonalDataMask.h"

#include <glog/logging.h>

#include <atomic>
#include <cstdio>
#include <mutex>
#include <string>

namespace Ostrel::Core {

namespace {

std::atomic<bool>& installedFlag()
{
    static std::atomic<bool> flag{false};
    return flag;
}

std::atomic<int>& threshold()
{
    static std::atomic<int> severity{google::GLOG_WARNING};
    return severity;
}

// glog's own file logger, behind the mask. glog owns this object; the wrapped logger stays glog's.
class MaskingFileLogger : public google::base::Logger
{
public:
    explicit MaskingFileLogger(google::base::Logger* wrapped) : m_wrapped(wrapped) {}

    void Write(bool forceFlush, time_t timestamp, const char* message, size_t length) override
    {
        const std::string masked = PersonalDataMask::mask(std::string(message, length));
        m_wrapped->Write(forceFlush, timestamp, masked.data(), masked.size());
    }
    void Flush() override { m_wrapped->Flush(); }
    google::uint32 LogSize() override { return m_wrapped->LogSize(); }

private:
    google::base::Logger* const m_wrapped;
};

// What glog would have written to standard error, masked. Called with glog's locks held: it must
// not log.
class MaskingConsoleSink : public google::LogSink
{
public:
    void send(google::LogSeverity severity, const char*, const char* baseFilename, int line,
              const google::LogMessageTime& time, const char* message, size_t length) override
    {
        if (severity < threshold().load())
            return;
        const std::string text =
            PersonalDataMask::mask(ToString(severity, baseFilename, line, time, message, length)) + '\n';
        std::fwrite(text.data(), 1, text.size(), stderr);
        std::fflush(stderr);
    }
};

} // namespace

void MaskedLogging::install()
{
    static std::once_flag once;
    std::call_once(once, []() {
        const bool everythingToConsole = FLAGS_logtostderr || FLAGS_alsologtostderr;
        threshold() = everythingToConsole ? int(google::GLOG_INFO) : FLAGS_stderrthreshold;
        for (int severity = google::GLOG_INFO; severity < google::NUM_SEVERITIES; ++severity) {
            // Standard error only, as before: no file until the product chooses one.
            if (FLAGS_logtostderr)
                google::SetLogDestination(severity, "");
            google::base::SetLogger(severity, new MaskingFileLogger(google::base::GetLogger(severity)));
        }
        static MaskingConsoleSink console;
        google::AddLogSink(&console);
        FLAGS_logtostderr = false;
        FLAGS_alsologtostderr = false;
        FLAGS_stderrthreshold = google::NUM_SEVERITIES;
        installedFlag() = true;
    });
}

bool MaskedLogging::isInstalled()
{
    return installedFlag().load();
}

int MaskedLogging::consoleThreshold()
{
    return isInstalled() ? threshold().load() : int(FLAGS_stderrthreshold);
}

void MaskedLogging::setConsoleThreshold(int severity)
{
    if (isInstalled())
        threshold() = severity;
    else
        FLAGS_stderrthreshold = severity;
}

} // namespace Ostrel::Core
