#include "Foundation/ioPath_p.h"

#include <QString>

#include <algorithm>

namespace Ostrel::Core::ioPathPlatform {

std::string toInternal(std::string utf8)
{
    std::replace(utf8.begin(), utf8.end(), '\\', '/');
    return utf8;
}

ioPath::native_string toNative(const std::string& utf8)
{
    std::wstring native = QString::fromStdString(utf8).toStdWString();
    std::replace(native.begin(), native.end(), L'/', L'\\');
    return native;
}

std::string fromNative(const ioPath::native_string& native)
{
    return toInternal(QString::fromStdWString(native).toStdString());
}

static bool hasDrive(const std::string& utf8)
{
    return utf8.size() >= 2 && utf8[1] == ':' &&
           ((utf8[0] >= 'A' && utf8[0] <= 'Z') || (utf8[0] >= 'a' && utf8[0] <= 'z'));
}

std::size_t rootLength(const std::string& utf8)
{
    if (hasDrive(utf8))
        return utf8.size() > 2 && utf8[2] == '/' ? 3 : 2;
    // "//server/share/" is one root: nothing above the share can be named.
    if (utf8.size() > 2 && utf8[0] == '/' && utf8[1] == '/') {
        const std::size_t server = utf8.find('/', 2);
        if (server == std::string::npos)
            return utf8.size();
        const std::size_t share = utf8.find('/', server + 1);
        return share == std::string::npos ? utf8.size() : share + 1;
    }
    return !utf8.empty() && utf8.front() == '/' ? 1 : 0;
}

// "C:x" is relative to the current folder of drive C, but it cannot be appended to another
// path meaningfully either, so it replaces it like any rooted path.
bool isAbsolute(const std::string& utf8)
{
    return rootLength(utf8) > 0;
}

} // namespace Ostrel::Core::ioPathPlatform
