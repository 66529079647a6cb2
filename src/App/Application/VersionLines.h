#pragma once

#include "App/Application/ostrel_app_export.h"

#include <string>
#include <vector>

namespace Ostrel::App {

/// The build's version lines, in the order the start banner logs them. The build fills them in.
OSTREL_APP_EXPORT const std::vector<std::string>& VersionLines();

} // namespace Ostrel::App
