#pragma once

namespace Ostrel::App::Web {

/// The user's web account.
/// Nothing in the shell calls it yet; the host may set an implementation of its own.
class IAccountController
{
public:
    virtual ~IAccountController() = default;
};

} // namespace Ostrel::App::Web
