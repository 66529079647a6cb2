#include "App/Application/DirectCallGateway.h"

namespace Ostrel::ExternalStimulus {

void DirectCallGateway::post(const Stimulus& stimulus)
{
    if (stimulus.action)
        stimulus.action();
}

void DirectCallGateway::flush() {}

bool DirectCallGateway::isHolding() const
{
    return false;
}

} // namespace Ostrel::ExternalStimulus
