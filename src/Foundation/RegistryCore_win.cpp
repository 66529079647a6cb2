#include "Foundation/RegistryCore_win.h"

#include <vector>

namespace Ostrel::Win32 {

RegistryText ReadRegistryText(HKEY root, const std::wstring& path, const std::wstring& value)
{
    RegistryText result;
    constexpr DWORD flags = RRF_RT_REG_SZ | RRF_SUBKEY_WOW6464KEY;
    DWORD bytes = 0;
    result.error = ::RegGetValueW(root, path.c_str(), value.c_str(), flags, nullptr, nullptr, &bytes);
    // The value may grow between the two calls: ask again, a few times, with the size the system
    // then reports.
    for (int attempt = 0; attempt < 4 && (result.error == ERROR_SUCCESS || result.error == ERROR_MORE_DATA);
         ++attempt) {
        std::vector<wchar_t> buffer(bytes / sizeof(wchar_t) + 1, L'\0');
        bytes = static_cast<DWORD>(buffer.size() * sizeof(wchar_t));
        result.error =
            ::RegGetValueW(root, path.c_str(), value.c_str(), flags, nullptr, buffer.data(), &bytes);
        if (result.error == ERROR_SUCCESS) {
            result.text = buffer.data();
            break;
        }
    }
    return result;
}

} // namespace Ostrel::Win32
