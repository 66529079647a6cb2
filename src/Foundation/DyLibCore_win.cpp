#include "Foundation/DyLibCore_win.h"

namespace Ostrel::Win32 {

HMODULE LoadDyLib(const std::string& utf8Name, DWORD* error)
{
    const int length = static_cast<int>(utf8Name.size());
    const int wideLength = length == 0 ? 0
                                       : ::MultiByteToWideChar(CP_UTF8, MB_ERR_INVALID_CHARS, utf8Name.data(),
                                                               length, nullptr, 0);
    if (wideLength == 0) {
        *error = ERROR_INVALID_PARAMETER;
        return nullptr;
    }
    std::wstring wide(static_cast<std::size_t>(wideLength), L'\0');
    ::MultiByteToWideChar(CP_UTF8, MB_ERR_INVALID_CHARS, utf8Name.data(), length, wide.data(), wideLength);
    HMODULE module = ::LoadLibraryW(wide.c_str());
    if (!module)
        *error = ::GetLastError();
    return module;
}

void* FindDyLibSymbol(HMODULE module, const char* name, DWORD* error)
{
    void* address = reinterpret_cast<void*>(::GetProcAddress(module, name));
    if (!address)
        *error = ::GetLastError();
    return address;
}

void FreeDyLib(HMODULE module)
{
    ::FreeLibrary(module);
}

} // namespace Ostrel::Win32
