#pragma once

namespace Ostrel::App {

/// A small task that the host runs once after the start.
class IExtension
{
public:
    virtual ~IExtension() = default;
    virtual void onStart() = 0;
};

} // namespace Ostrel::App
