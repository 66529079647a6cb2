#include "Ipc/IPCBaseProtocol.h"

namespace Ostrel::App {

// Defined here so that the vtable and meta-object live in one library.
IPCBaseProtocol::~IPCBaseProtocol() = default;

} // namespace Ostrel::App
