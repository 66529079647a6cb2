#include "App/Application/Testing/FakeConnectionChecker.h"

namespace Ostrel::App {

FakeConnectionChecker::FakeConnectionChecker(bool connected) : m_connected(connected) {}

FakeConnectionChecker::~FakeConnectionChecker() = default;

bool FakeConnectionChecker::IsConnected()
{
    return m_connected;
}

IInternetConnectionChecker::ConnectionHandle FakeConnectionChecker::GetConnectionHandle()
{
    return nullptr;
}

} // namespace Ostrel::App
