#include "App/Application/AppMutexName_p.h"

namespace Ostrel::App {

// The product's installer and updater look for this very name: it stays the same for every product.
std::string AppMutexNameFor(const QString&, const QString&)
{
    return ApplicationMutexGuid;
}

} // namespace Ostrel::App
