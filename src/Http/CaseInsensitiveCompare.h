#pragma once

#include "Http/ostrel_http_export.h"

#include <string>

namespace Ostrel::Networking {

/// Orders header names as HTTP compares them: ASCII letters without regard to case, every other
/// byte as it is. For std::map<std::string, T, CaseInsensitiveCompare>.
struct OSTREL_HTTP_EXPORT CaseInsensitiveCompare
{
    bool operator()(const std::string& left, const std::string& right) const;
};

} // namespace Ostrel::Networking
