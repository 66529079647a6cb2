#pragma once

#include "App/Application/Gesture/IPlatformApi.h"

#include <cstdint>
#include <memory>

namespace Ostrel::App {

/// What a producer remembers between messages; shared by a producer and its copies.
struct ProducerState
{
    Gesture::IPlatformApi::ConfigEntry configs[5];
    Gesture::IPlatformApi::ConfigEntry* zoomConfig;
    Gesture::IPlatformApi::ConfigEntry* panConfig;
    Gesture::IPlatformApi::ConfigEntry* rotateConfig;
    Gesture::IPlatformApi::ConfigEntry* tapConfig;
    Gesture::IPlatformApi::ConfigEntry* pressAndTapConfig;
    double startDistance;
    double startAngle;
    std::int32_t startX;
    std::int32_t startY;
    std::weak_ptr<Gesture::Consumer> consumer;
    Gesture::IPlatformApi* api;
};

} // namespace Ostrel::App
