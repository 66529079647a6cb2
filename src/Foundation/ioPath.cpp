#include "Foundation/ioPath.h"

#include "Foundation/ioPath_p.h"

#include <algorithm>
#include <utility>

namespace Ostrel::Core {

class ioPath::Impl
{
public:
    std::string path;
};

ioPath::ioPath() : d(std::make_unique<Impl>()) {}

ioPath::ioPath(const std::string& utf8) : d(std::make_unique<Impl>(Impl{ioPathPlatform::toInternal(utf8)})) {}

ioPath::ioPath(const char* utf8) : ioPath(std::string(utf8 ? utf8 : "")) {}

ioPath::ioPath(const QString& path) : ioPath(path.toStdString()) {}

ioPath ioPath::fromNative(const native_string& native)
{
    return ioPath(ioPathPlatform::fromNative(native));
}

ioPath::ioPath(const ioPath& other) : d(std::make_unique<Impl>(Impl{other.raw()})) {}

// A moved-from path keeps no Impl: raw() reads it as empty, and assigning to it restores one.
ioPath::ioPath(ioPath&& other) noexcept = default;

ioPath& ioPath::operator=(const ioPath& other)
{
    if (this != &other)
        d = std::make_unique<Impl>(Impl{other.raw()});
    return *this;
}

ioPath& ioPath::operator=(ioPath&& other) noexcept = default;

ioPath::~ioPath() = default;

const std::string& ioPath::raw() const
{
    static const std::string empty;
    return d ? d->path : empty;
}

std::string ioPath::utf8() const
{
    return raw();
}

ioPath::native_string ioPath::nativeString() const
{
    return ioPathPlatform::toNative(raw());
}

QString ioPath::toQString() const
{
    return QString::fromStdString(raw());
}

bool ioPath::empty() const
{
    return raw().empty();
}

ioPath ioPath::fileName() const
{
    const std::string& path = raw();
    const std::size_t root = ioPathPlatform::rootLength(path);
    const std::size_t slash = path.rfind('/');
    if (slash == std::string::npos || slash < root)
        return ioPath(path.substr(root));
    return ioPath(path.substr(slash + 1));
}

ioPath ioPath::parent() const
{
    const std::string& path = raw();
    const std::size_t root = ioPathPlatform::rootLength(path);
    std::size_t slash = path.rfind('/');
    if (slash == std::string::npos || slash < root)
        return ioPath(path.substr(0, root));
    // "a//b" has the parent "a", not "a/".
    while (slash > root && path[slash - 1] == '/')
        --slash;
    return ioPath(path.substr(0, std::max(slash, root)));
}

ioPath& ioPath::operator/=(const ioPath& other)
{
    const std::string& right = other.raw();
    if (right.empty())
        return *this;
    if (empty() || ioPathPlatform::isAbsolute(right))
        return *this = other;

    std::string joined = raw();
    const std::size_t root = ioPathPlatform::rootLength(joined);
    while (joined.size() > root && joined.back() == '/')
        joined.pop_back();
    if (joined.back() != '/')
        joined += '/';
    joined += right;
    d = std::make_unique<Impl>(Impl{std::move(joined)});
    return *this;
}

int ioPath::compare(const ioPath& other) const
{
    return raw().compare(other.raw());
}

} // namespace Ostrel::Core
