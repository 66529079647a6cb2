#pragma once

namespace Ostrel::App::NagScreen {

class AbstractContent;

/// Puts a content in front of the user. The call blocks until the nag is over and returns its
/// exit code.
class IShowStrategy
{
public:
    virtual ~IShowStrategy() = default;
    virtual int ShowNag(AbstractContent& content) = 0;
};

} // namespace Ostrel::App::NagScreen
