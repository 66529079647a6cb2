#include "App/Application/RequiredComponent.h"

#include <glog/logging.h>

namespace Ostrel::App {

void logMissingComponent(const std::string& user, const std::string& component)
{
    LOG(ERROR) << user << " needs the component " << component
               << ", which the product has not set in the application context";
}

} // namespace Ostrel::App
