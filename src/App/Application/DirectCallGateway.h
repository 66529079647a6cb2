#pragma once

#include "App/Application/ostrel_app_export.h"
#include "Interfaces/IGateway.h"

namespace Ostrel::ExternalStimulus {

/// The default gateway: runs each action at once, in the caller's thread, and never holds any back.
class OSTREL_APP_EXPORT DirectCallGateway : public IGateway
{
public:
    void post(const Stimulus& stimulus) override;
    void flush() override;
    bool isHolding() const override;
};

} // namespace Ostrel::ExternalStimulus
