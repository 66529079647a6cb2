#include "Http/CaseInsensitiveCompare.h"

#include <algorithm>

namespace Ostrel::Networking {

namespace {

// ASCII only: the locale must not decide how a header name sorts.
unsigned char folded(char c)
{
    const auto byte = static_cast<unsigned char>(c);
    return byte >= 'A' && byte <= 'Z' ? static_cast<unsigned char>(byte - 'A' + 'a') : byte;
}

} // namespace

bool CaseInsensitiveCompare::operator()(const std::string& left, const std::string& right) const
{
    return std::lexicographical_compare(left.begin(), left.end(), right.begin(), right.end(),
                                        [](char a, char b) { return folded(a) < folded(b); });
}

} // namespace Ostrel::Networking
