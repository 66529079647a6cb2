#pragma once

#include "Foundation/ostrel_foundation_export.h"

#include <string>

#include <windows.h>

// Registry reads in Windows API terms only.
namespace Ostrel::Win32 {

struct RegistryText
{
    std::wstring text;
    /// ERROR_SUCCESS, ERROR_FILE_NOT_FOUND for a missing key or value, ERROR_UNSUPPORTED_TYPE
    /// for a value that is not text.
    LONG error = ERROR_SUCCESS;
};

/// The text value `value` of `root`\`path`, from the 64-bit view: a 32-bit build would otherwise
/// read the redirected, often empty, key.
OSTREL_FOUNDATION_EXPORT RegistryText ReadRegistryText(HKEY root, const std::wstring& path,
                                                       const std::wstring& value);

} // namespace Ostrel::Win32
