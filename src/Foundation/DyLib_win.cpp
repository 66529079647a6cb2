#include "Foundation/DyLib_p.h"

#include <QString>

#include <windows.h>

namespace Ostrel::Core::DyLibPlatform {

void* open(const std::string& name, std::string& error)
{
    if (name.empty()) {
        error = "empty library name";
        return nullptr;
    }
    const std::wstring wide = QString::fromStdString(name).toStdWString();
    HMODULE module = ::LoadLibraryW(wide.c_str());
    if (!module)
        error = "LoadLibraryW failed with error " + std::to_string(::GetLastError());
    return module;
}

void close(void* handle)
{
    ::FreeLibrary(static_cast<HMODULE>(handle));
}

void* symbol(void* handle, const char* name)
{
    return reinterpret_cast<void*>(::GetProcAddress(static_cast<HMODULE>(handle), name));
}

} // namespace Ostrel::Core::DyLibPlatform
