#include "App/Application/Gesture/Consumer.h"

namespace Ostrel::App {

Gesture::Consumer::~Consumer() = default;

void Gesture::Consumer::OnGesture(const PressAndTap&) {}
void Gesture::Consumer::OnGesture(const Tap&) {}
void Gesture::Consumer::OnGesture(const Rotate&) {}
void Gesture::Consumer::OnGesture(const Zoom&) {}
void Gesture::Consumer::OnGesture(const Pan&) {}

int Gesture::Consumer::WantGesture(const PressAndTap&)
{
    return None;
}
int Gesture::Consumer::WantGesture(const Tap&)
{
    return None;
}
int Gesture::Consumer::WantGesture(const Rotate&)
{
    return None;
}
int Gesture::Consumer::WantGesture(const Zoom&)
{
    return None;
}
int Gesture::Consumer::WantGesture(const Pan&)
{
    return None;
}

} // namespace Ostrel::App
