#include "LogCapture.h"

namespace Ostrel::Test {

LogCapture::LogCapture()
{
    google::AddLogSink(this);
}

LogCapture::~LogCapture()
{
    google::RemoveLogSink(this);
}

void LogCapture::send(google::LogSeverity severity, const char*, const char*, int,
                      const google::LogMessageTime&, const char* message, size_t messageLen)
{
    std::lock_guard<std::mutex> lock(m_mutex);
    m_lines.push_back({severity, std::string(message, messageLen)});
}

std::vector<LogCapture::Line> LogCapture::lines() const
{
    std::lock_guard<std::mutex> lock(m_mutex);
    return m_lines;
}

std::vector<std::string> LogCapture::texts() const
{
    std::vector<std::string> result;
    for (const Line& line : lines())
        result.push_back(line.text);
    return result;
}

std::vector<std::string> LogCapture::matching(const std::string& needle) const
{
    std::vector<std::string> result;
    for (const Line& line : lines()) {
        if (line.text.find(needle) != std::string::npos)
            result.push_back(line.text);
    }
    return result;
}

void LogCapture::clear()
{
    std::lock_guard<std::mutex> lock(m_mutex);
    m_lines.clear();
}

} // namespace Ostrel::Test
