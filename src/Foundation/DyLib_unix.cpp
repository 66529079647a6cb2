#include "Foundation/DyLib_p.h"

#include <dlfcn.h>

namespace Ostrel::Core::DyLibPlatform {

void* open(const std::string& name, std::string& error)
{
    // An empty name would make dlopen hand back the main program, which is not a library.
    if (name.empty()) {
        error = "empty library name";
        return nullptr;
    }
    void* handle = ::dlopen(name.c_str(), RTLD_NOW | RTLD_LOCAL);
    if (!handle) {
        const char* reason = ::dlerror();
        error = reason ? reason : "unknown dlopen failure";
    }
    return handle;
}

void close(void* handle)
{
    ::dlclose(handle);
}

void* symbol(void* handle, const char* name)
{
    return ::dlsym(handle, name);
}

std::string fileOf(const void* address)
{
    Dl_info info{};
    if (::dladdr(address, &info) == 0 || !info.dli_fname)
        return {};
    return info.dli_fname;
}

} // namespace Ostrel::Core::DyLibPlatform
