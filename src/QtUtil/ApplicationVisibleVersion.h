#pragma once

#include "QtUtil/ostrel_qtutil_export.h"

#include <QString>

#include <string>

namespace Ostrel::Util {

/// The version as people see it in windows and dialogs, from the dotted build version (UTF-8).
///
/// Trailing zero components are dropped, but never below "major.minor":
///   "2.5.0.0" -> "2.5", "2.0.0.0" -> "2.0", "2.5.1.0" -> "2.5.1", "2.5.1.1234" -> "2.5.1.1234",
///   "2.5.0.7" -> "2.5.0.7".
/// Anything that is not a dotted list of decimal numbers ("", "2.5-beta", "2..5") is returned as
/// given, only trimmed of surrounding white space.
OSTREL_QTUTIL_EXPORT QString GenerateApplicationVisibleVersion(const std::string& version);

} // namespace Ostrel::Util
