#include "App/Application/Gesture/IPlatformApi.h"

namespace Ostrel::App {

Gesture::IPlatformApi::~IPlatformApi() = default;

} // namespace Ostrel::App
