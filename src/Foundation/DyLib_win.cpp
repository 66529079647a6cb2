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

} // namespace Ostrel::Core::DyLibPlatform
