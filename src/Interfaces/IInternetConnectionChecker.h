#pragma once

namespace Ostrel::App {

/// Tells whether the machine is online.
/// Nothing in the shell calls it yet; the host may set an implementation of its own.
class IInternetConnectionChecker
{
public:
    virtual ~IInternetConnectionChecker() = default;
};

} // namespace Ostrel::App
