#include "Foundation/DyLib_p.h"

#include "Foundation/DyLibCore_win.h"

namespace Ostrel::Core::DyLibPlatform {

void* open(const std::string& name, std::string& error)
{
    if (name.empty()) {
        error = "empty library name";
        return nullptr;
    }
    DWORD code = 0;
    HMODULE module = Win32::LoadDyLib(name, &code);
    if (!module)
        error = "LoadLibraryW failed with error " + std::to_string(code);
    return module;
}

void close(void* handle)
{
    Win32::FreeDyLib(static_cast<HMODULE>(handle));
}

void* symbol(void* handle, const char* name)
{
    DWORD ignored = 0;
    return Win32::FindDyLibSymbol(static_cast<HMODULE>(handle), name, &ignored);
}

std::string fileOf(const void* address)
{
    HMODULE module = nullptr;
    if (!::GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS |
                                  GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                              static_cast<LPCWSTR>(address), &module))
        return {};
    std::wstring wide(MAX_PATH, L'\0');
    for (;;) {
        const DWORD length = ::GetModuleFileNameW(module, wide.data(), static_cast<DWORD>(wide.size()));
        if (length == 0)
            return {};
        if (length < wide.size()) {
            wide.resize(length);
            break;
        }
        wide.resize(wide.size() * 2);
    }
    const int size = ::WideCharToMultiByte(CP_UTF8, 0, wide.data(), static_cast<int>(wide.size()), nullptr, 0,
                                           nullptr, nullptr);
    std::string utf8(static_cast<std::size_t>(size), '\0');
    ::WideCharToMultiByte(CP_UTF8, 0, wide.data(), static_cast<int>(wide.size()), utf8.data(), size, nullptr,
                          nullptr);
    return utf8;
}

} // namespace Ostrel::Core::DyLibPlatform
