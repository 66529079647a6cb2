#pragma once

#include <QByteArray>
#include <QString>

// The system's identifier, read by one HardwareInfo_<platform>.cpp.
namespace Ostrel::App::Platform {

/// The raw identifier, trimmed, or empty. `source` receives what was read (or tried), for the log.
QByteArray readMachineId(QString* source);

} // namespace Ostrel::App::Platform
