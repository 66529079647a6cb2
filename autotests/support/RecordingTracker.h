#pragma once

#include "Tracking/IApplicationTracker.h"

#include <map>
#include <mutex>
#include <string>
#include <vector>

namespace Ostrel::Test {

/// A tracker that keeps the events it is sent, for tests to read back. Install it with
/// ApplicationTrackerFactory::setApplicationTracker and remove it (null) when the test ends.
class RecordingTracker : public Ostrel::Tracking::IApplicationTracker
{
public:
    struct Event
    {
        std::string name;
        std::map<std::string, std::string> params;
    };

    void sendEvent(const std::string& name, const std::map<std::string, std::string>& params) override
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        m_events.push_back({name, params});
    }

    std::vector<Event> events() const
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        return m_events;
    }

    /// The names of the events, in order.
    std::vector<std::string> names() const
    {
        std::vector<std::string> result;
        for (const Event& event : events())
            result.push_back(event.name);
        return result;
    }

    void clear()
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        m_events.clear();
    }

private:
    mutable std::mutex m_mutex;
    std::vector<Event> m_events;
};

} // namespace Ostrel::Test
