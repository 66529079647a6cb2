#pragma once

#include "Foundation/ostrel_foundation_export.h"

#include <QString>

#include <memory>
#include <string>

namespace Ostrel::Core {

/// A file system path held as UTF-8 with "/" separators whatever the platform, so that paths
/// compare, join and log the same everywhere. Conversion to the form the OS APIs take happens
/// only at the edge, through nativeString().
///
/// Comparison is byte-wise on the UTF-8 form: it does not touch the file system and does not
/// fold case, so two spellings of one file on a case-insensitive file system compare unequal.
class OSTREL_FOUNDATION_EXPORT ioPath
{
public:
#ifdef _WIN32
    using native_string = std::wstring;
#else
    using native_string = std::string;
#endif

    /// The empty path.
    ioPath();
    /// From UTF-8 bytes; native separators are accepted and turned into "/".
    ioPath(const std::string& utf8);
    ioPath(const char* utf8);
    ioPath(const QString& path);
    /// From the platform's own form (UTF-16 on Windows, bytes elsewhere).
    static ioPath fromNative(const native_string& native);

    ioPath(const ioPath& other);
    ioPath(ioPath&& other) noexcept;
    ioPath& operator=(const ioPath& other);
    ioPath& operator=(ioPath&& other) noexcept;
    ~ioPath();

    /// The path in UTF-8 with "/" separators.
    std::string utf8() const;
    /// The path as the OS APIs take it: UTF-16 with "\" separators on Windows, UTF-8 elsewhere.
    native_string nativeString() const;
    QString toQString() const;
    bool empty() const;

    /// The last component: what follows the last separator. Empty when the path is empty, is a
    /// bare root, or ends with a separator.
    ioPath fileName() const;
    /// The path without its last component and the separator before it; a root stays itself
    /// and a single relative component gives the empty path. Separators doubled before the last
    /// component go with it: the parent of "a//b" is "a".
    ioPath parent() const;

    /// Appends `other` as a further component with exactly one separator between the two. An
    /// empty side leaves the other unchanged; an absolute `other` replaces this path entirely,
    /// as std::filesystem does, so that joining a base folder with a user-supplied absolute
    /// path yields that path.
    ioPath& operator/=(const ioPath& other);

    /// Byte-wise order of the UTF-8 forms: negative, zero or positive like std::string::compare.
    int compare(const ioPath& other) const;

private:
    const std::string& raw() const;

    class Impl;
    std::unique_ptr<Impl> d;
};

inline ioPath operator/(ioPath left, const ioPath& right)
{
    left /= right;
    return left;
}

inline bool operator==(const ioPath& left, const ioPath& right)
{
    return left.compare(right) == 0;
}
inline bool operator!=(const ioPath& left, const ioPath& right)
{
    return left.compare(right) != 0;
}
inline bool operator<(const ioPath& left, const ioPath& right)
{
    return left.compare(right) < 0;
}

} // namespace Ostrel::Core
