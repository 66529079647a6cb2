#pragma once

namespace Ostrel::App {

/// Turns link keys into URLs and opens them. Its operations arrive with the links.
class ILinksManager
{
public:
    virtual ~ILinksManager() = default;
};

} // namespace Ostrel::App
