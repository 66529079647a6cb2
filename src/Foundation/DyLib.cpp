#include "Foundation/DyLib.h"

#include "Foundation/DyLib_p.h"

#include <glog/logging.h>

namespace Ostrel::Core {

class DyLib::Impl
{
public:
    std::string name;
    void* handle = nullptr;

    ~Impl()
    {
        if (handle)
            DyLibPlatform::close(handle);
    }
};

DyLib::DyLib(const std::string& name) : d(std::make_unique<Impl>())
{
    d->name = name;
    std::string error;
    d->handle = DyLibPlatform::open(name, error);
    if (!d->handle)
        VLOG(1) << "Library " << name << " not loaded: " << error;
}

DyLib::DyLib(DyLib&& other) noexcept = default;
DyLib& DyLib::operator=(DyLib&& other) noexcept = default;
DyLib::~DyLib() = default;

bool DyLib::isLoaded() const
{
    return d && d->handle;
}

std::string DyLib::name() const
{
    return d ? d->name : std::string();
}

void* DyLib::address(const char* symbol) const
{
    if (!isLoaded() || !symbol)
        return nullptr;
    return DyLibPlatform::symbol(d->handle, symbol);
}

std::string DyLib::fileOf(const void* address)
{
    return address ? DyLibPlatform::fileOf(address) : std::string();
}

} // namespace Ostrel::Core
