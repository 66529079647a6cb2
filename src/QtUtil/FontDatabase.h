#pragma once

#include "QtUtil/ostrel_qtutil_export.h"

#include <string>

namespace Ostrel::Util {

/// Application fonts registered from files or ":/" resources.
class OSTREL_QTUTIL_EXPORT FontDatabase
{
public:
    /// Registers the font file at `path` (UTF-8; ":/" paths allowed) and returns Qt's font id,
    /// -1 when the file is missing or not a font (logged as a WARNING line).
    static int addApplicationFont(const std::string& path);
};

} // namespace Ostrel::Util
