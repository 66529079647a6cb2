#pragma once

#include <functional>
#include <string>

namespace Ostrel::ExternalStimulus {

/// A named action handed on for execution.
struct Stimulus
{
    std::string name;
    std::function<void()> action;
};

/// The route through which named actions are executed. The host may replace the default one,
/// for example to defer actions while a modal flow runs.
class IGateway
{
public:
    virtual ~IGateway() = default;
    virtual void post(const Stimulus& stimulus) = 0;
    /// Lets actions held back by the gateway run.
    virtual void flush() = 0;
    /// True when the gateway holds actions back.
    virtual bool isHolding() const = 0;
};

} // namespace Ostrel::ExternalStimulus
