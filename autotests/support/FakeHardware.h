#pragma once

#include "Interfaces/IHardwareInfo.h"

#include <string>

namespace Ostrel::Test {

class FakeHardware : public App::IHardwareInfo
{
public:
    std::string id = "machine-42";
    std::string GetHardwareId() const override { return id; }
};

} // namespace Ostrel::Test
