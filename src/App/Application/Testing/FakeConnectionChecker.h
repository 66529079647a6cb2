#pragma once

#include "App/Application/ostrel_app_export.h"
#include "Interfaces/IInternetConnectionChecker.h"

namespace Ostrel::App {

/// A connection checker with a fixed answer and no connection handle.
class OSTREL_APP_EXPORT FakeConnectionChecker : public IInternetConnectionChecker
{
public:
    explicit FakeConnectionChecker(bool connected);
    ~FakeConnectionChecker() override;

    bool IsConnected() override;
    ConnectionHandle GetConnectionHandle() override;

private:
    bool m_connected;
};

} // namespace Ostrel::App
