#pragma once

namespace Ostrel::App {

/// Attributes the installation to a partner.
/// Nothing in the shell calls it yet; the host may set an implementation of its own.
class IPartnerTracking
{
public:
    virtual ~IPartnerTracking() = default;
};

} // namespace Ostrel::App
