#include "Foundation/DyLib.h"

#include "Foundation/DyLib_p.h"

#include <glog/logging.h>

namespace Ostrel::Core {

struct DyLib::Impl
{
    std::string name;
    void* handle = nullptr;

    ~Impl()
    {
        if (handle)
            DyLibPlatform::close(handle);
    }
};

DyLib::DyLib(const std::string& name) : m_impl(std::make_unique<Impl>())
{
    m_impl->name = name;
    std::string error;
    m_impl->handle = DyLibPlatform::open(name, error);
    if (!m_impl->handle)
        VLOG(1) << "Library " << name << " not loaded: " << error;
}

DyLib::DyLib(DyLib&& other) noexcept = default;
DyLib& DyLib::operator=(DyLib&& other) noexcept = default;
DyLib::~DyLib() = default;

bool DyLib::isLoaded() const
{
    return m_impl && m_impl->handle;
}

std::string DyLib::name() const
{
    return m_impl ? m_impl->name : std::string();
}

void* DyLib::address(const char* symbol) const
{
    if (!isLoaded() || !symbol)
        return nullptr;
    return DyLibPlatform::symbol(m_impl->handle, symbol);
}

} // namespace Ostrel::Core
