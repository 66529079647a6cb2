#pragma once

#include <string>

namespace Ostrel::App {

/// Identity of the machine for outgoing requests.
class IHardwareInfo
{
public:
    virtual ~IHardwareInfo() = default;
    /// A stable identifier of this machine, or empty when the system offers none.
    virtual std::string GetHardwareId() const = 0;
};

} // namespace Ostrel::App
