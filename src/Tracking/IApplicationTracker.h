#pragma once

#include <map>
#include <string>

namespace Ostrel::Tracking {

/// Receives the product's usage events. Names and parameters are UTF-8. Implementations may be
/// called from any thread and must not throw.
class IApplicationTracker
{
public:
    virtual ~IApplicationTracker() = default;
    virtual void sendEvent(const std::string& name, const std::map<std::string, std::string>& params) = 0;
};

} // namespace Ostrel::Tracking
