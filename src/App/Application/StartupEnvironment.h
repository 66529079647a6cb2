#pragma once

#include "App/Application/ostrel_app_export.h"

#include <QString>

#include <functional>
#include <map>

namespace Ostrel::App {

/// Chooses how the process scales on high-DPI screens. Call it before any Qt object exists.
/// With "OSTREL_DPI_POLICY" set to exactly "NOSCALE" nothing changes. Otherwise, where the system
/// offers "SetProcessDpiAwareness" (in "Shcore.dll"), the process is made DPI-unaware and the
/// system scales it; elsewhere Qt's own high-DPI scaling is switched on.
OSTREL_APP_EXPORT void HighDpiFix();

/// Makes Qt use the desktop OpenGL driver. Call it before any Qt object exists.
OSTREL_APP_EXPORT void UseDesktopOpenGL();

/// The running processes that `filter` accepts, by lower-case file name, with their full paths.
/// A process whose image can't be read has an empty name and path; a later process of the same
/// name replaces an earlier one. An empty filter raises std::bad_function_call.
OSTREL_APP_EXPORT std::map<QString, QString> GetCurrentProcessMap(std::function<bool(const QString&)> filter);

} // namespace Ostrel::App
