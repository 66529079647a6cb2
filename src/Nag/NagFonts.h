#pragma once

#include "Nag/ostrel_nagquick_export.h"

namespace Ostrel::App::NagScreen {

/// Registers the fonts the library carries with Qt's font database, and maps the families the
/// nags name ("Arial", "Verdana") to them as font substitutions for the whole process. Done once
/// per process; later calls return at once. A file that does not register is logged as a WARNING
/// line, and the nag then draws with a substitute font. A machine that has a real Arial or
/// Verdana draws the nags with it: a substitution applies only to a family the machine lacks.
OSTREL_NAGQUICK_EXPORT void RegisterNagFonts();

} // namespace Ostrel::App::NagScreen
