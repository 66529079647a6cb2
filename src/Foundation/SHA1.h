#pragma once

#include "Foundation/ostrel_foundation_export.h"

#include <string>

namespace Ostrel::Util {

/// SHA-1 of byte strings, for fingerprints and cache keys; not for anything that must resist
/// a deliberate collision.
class OSTREL_FOUNDATION_EXPORT SHA1
{
public:
    SHA1() = delete;

    /// The SHA-1 digest of the bytes of `data` as 40 lower-case hex digits.
    static std::string digest(const std::string& data);
};

} // namespace Ostrel::Util
