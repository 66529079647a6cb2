#include "App/Application/Gesture/Consumer.h"

namespace Ostrel::App {

Gesture::Consumer::Consumer() : m_lifetime(std::make_shared<char>()) {}

Gesture::Consumer::Consumer(const Consumer&) : Consumer() {}

Gesture::Consumer& Gesture::Consumer::operator=(const Consumer&)
{
    return *this;
}

Gesture::Consumer::~Consumer() = default;

std::weak_ptr<Gesture::Consumer> Gesture::Consumer::weakHandle()
{
    // Shares the lifetime token's count and points at this consumer: the handle expires with it.
    return std::shared_ptr<Consumer>(m_lifetime, this);
}

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
