#pragma once

#include "Core/ostrel_core_export.h"
#include "Interfaces/IHardwareInfo.h"

#include <memory>

namespace Ostrel::App {

/// The machine's identifier for outgoing requests.
///
/// The system's own identifier (/etc/machine-id, else /var/lib/dbus/machine-id, on Linux; the
/// registry's Cryptography\MachineGuid on Windows) is never sent as it is: the system treats it
/// as confidential. GetHardwareId() gives a keyed SHA-256 of it instead, 32 lower-case hex
/// digits, the same for every run on this machine. It is read once, at construction; when the
/// system offers none the id is empty and one WARNING line says so.
class OSTREL_CORE_EXPORT HardwareInfo : public IHardwareInfo
{
public:
    HardwareInfo();
    ~HardwareInfo() override;

    std::string GetHardwareId() const override;

private:
    class Impl;
    std::unique_ptr<Impl> d;
};

} // namespace Ostrel::App
