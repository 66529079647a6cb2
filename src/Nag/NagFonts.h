#pragma once

#include "Nag/ostrel_nagquick_export.h"

namespace Ostrel::App::NagScreen {

/// Registers the fonts the library carries with Qt's font database. Done once per process; later
/// calls return at once. A file that does not register is logged as a WARNING line, and the nag
/// then draws with a substitute font.
OSTREL_NAGQUICK_EXPORT void RegisterNagFonts();

} // namespace Ostrel::App::NagScreen
