#pragma once

#include "Foundation/ostrel_foundation_export.h"

#include <QString>

#include <string>

namespace Ostrel::Util {

/// The UTF-8 bytes of `text`. Every std::string that crosses into the shell's interfaces is UTF-8.
OSTREL_FOUNDATION_EXPORT std::string QStringToUtf8(const QString& text);

/// Decodes UTF-8 bytes; invalid sequences become U+FFFD rather than failing.
OSTREL_FOUNDATION_EXPORT QString Utf8ToQString(const std::string& text);

} // namespace Ostrel::Util
