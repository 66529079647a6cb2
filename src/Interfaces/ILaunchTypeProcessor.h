#pragma once

namespace Ostrel::App {

/// How this launch came about.
class ILaunchTypeProcessor
{
public:
    /// The launch types the product knows. Code compares the integer, so the values are fixed.
    enum LaunchType
    {
        Regular = 0,
        FirstAfterInstall = 1,
        FirstAfterUpdate = 2,
        Restarted = 3,
        /// Started with nobody in front of it (at log-in, or by another program): no pages, no
        /// questions, no partner bookkeeping.
        Background = 4,
    };

    virtual ~ILaunchTypeProcessor() = default;
    virtual int GetLaunchType() const = 0;
};

} // namespace Ostrel::App
