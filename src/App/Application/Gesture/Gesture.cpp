#include "App/Application/Gesture/Gesture.h"

namespace Ostrel::App {

const int Gesture::All = 1;
const int Gesture::None = 0;

} // namespace Ostrel::App
