#pragma once

namespace Ostrel::App {

/// Detects that the user has been idle.
/// Nothing in the shell calls it yet; the host may set an implementation of its own.
class IIdleManager
{
public:
    virtual ~IIdleManager() = default;
};

} // namespace Ostrel::App
