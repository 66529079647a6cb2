#include "Foundation/ioPath_p.h"

namespace Ostrel::Core::ioPathPlatform {

// On Unix "/" is the only separator: a backslash is an ordinary file name character.
std::string toInternal(std::string utf8)
{
    return utf8;
}

ioPath::native_string toNative(const std::string& utf8)
{
    return utf8;
}

std::string fromNative(const ioPath::native_string& native)
{
    return native;
}

std::size_t rootLength(const std::string& utf8)
{
    return !utf8.empty() && utf8.front() == '/' ? 1 : 0;
}

bool isAbsolute(const std::string& utf8)
{
    return rootLength(utf8) > 0;
}

} // namespace Ostrel::Core::ioPathPlatform
