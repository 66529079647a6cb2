#pragma once

#include "Foundation/ioPath.h"

#include <cstddef>
#include <string>

// What ioPath needs to know about the platform's path syntax; one definition per platform.
namespace Ostrel::Core::ioPathPlatform {

/// The path with the platform's alternative separators turned into "/".
std::string toInternal(std::string utf8);
ioPath::native_string toNative(const std::string& utf8);
std::string fromNative(const ioPath::native_string& native);
/// How many leading bytes of `utf8` form its root ("/", "C:/", "//server/share/"), 0 if relative.
std::size_t rootLength(const std::string& utf8);
/// Whether joining `utf8` onto another path should replace that path instead.
bool isAbsolute(const std::string& utf8);

} // namespace Ostrel::Core::ioPathPlatform
