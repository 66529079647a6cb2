#pragma once

#include "App/Application/ostrel_app_export.h"

#include <string>
#include <vector>

namespace Ostrel::App {

/// The shell's own lines of the start banner, in this order: "Shell version: " and the shell's
/// version, "Shell commit: " and the commit it was built from ("unknown" when built outside a git
/// checkout). The build fills them in. The product's own lines come before them
/// (Application::SetProductVersionLines).
OSTREL_APP_EXPORT const std::vector<std::string>& ShellVersionLines();

} // namespace Ostrel::App
