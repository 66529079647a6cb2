#pragma once

#include <glog/logging.h>

#include <mutex>
#include <string>
#include <vector>

namespace Ostrel::Test {

/// Collects the glog messages sent while it lives, so that a test can read the log lines.
class LogCapture : public google::LogSink
{
public:
    struct Line
    {
        google::LogSeverity severity;
        std::string text;
    };

    LogCapture();
    ~LogCapture() override;
    LogCapture(const LogCapture&) = delete;
    LogCapture& operator=(const LogCapture&) = delete;

    void send(google::LogSeverity severity, const char* fullFilename, const char* baseFilename, int line,
              const google::LogMessageTime& time, const char* message, size_t messageLen) override;

    std::vector<Line> lines() const;
    /// The texts of the lines, in order.
    std::vector<std::string> texts() const;
    /// The texts that contain `needle`.
    std::vector<std::string> matching(const std::string& needle) const;
    void clear();

private:
    mutable std::mutex m_mutex;
    std::vector<Line> m_lines;
};

} // namespace Ostrel::Test
