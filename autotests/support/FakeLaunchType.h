#pragma once

#include "Interfaces/ILaunchTypeProcessor.h"

namespace Ostrel::Test {

/// Always an update launch.
class FakeLaunchType : public App::ILaunchTypeProcessor
{
public:
    int GetLaunchType() const override { return 2; }
};

} // namespace Ostrel::Test
