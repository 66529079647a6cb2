#include "Foundation/Property.h"

#include <algorithm>

namespace Ostrel::Core {

struct Property::Impl
{
    std::string name;
    std::string value;
    std::list<Property> children;
};

Property::Property()
    : m_impl(std::make_unique<Impl>())
{
}

Property::Property(const std::string& name, const std::string& value)
    : m_impl(std::make_unique<Impl>(Impl{name, value, {}}))
{
}

Property::Property(const Property& other)
    : m_impl(std::make_unique<Impl>(*other.m_impl))
{
}

// A moved-from property stays usable (empty), so that containers may move nodes freely.
Property::Property(Property&& other) noexcept
    : m_impl(std::move(other.m_impl))
{
    other.m_impl = std::make_unique<Impl>();
}

Property& Property::operator=(const Property& other)
{
    if (this != &other)
        *m_impl = *other.m_impl;
    return *this;
}

Property& Property::operator=(Property&& other) noexcept
{
    if (this != &other) {
        m_impl = std::move(other.m_impl);
        other.m_impl = std::make_unique<Impl>();
    }
    return *this;
}

Property::~Property() = default;

const std::string& Property::GetName() const
{
    return m_impl->name;
}

void Property::SetName(const std::string& name)
{
    m_impl->name = name;
}

const std::string& Property::GetString() const
{
    return m_impl->value;
}

void Property::SetString(const std::string& value)
{
    m_impl->value = value;
}

bool Property::ChildExists(const std::string& name) const
{
    return GetChild(name) != nullptr;
}

const Property* Property::GetChild(const std::string& name) const
{
    const auto it = std::find_if(m_impl->children.begin(), m_impl->children.end(),
                                 [&](const Property& child) { return child.GetName() == name; });
    return it == m_impl->children.end() ? nullptr : &*it;
}

Property* Property::GetChild(const std::string& name)
{
    return const_cast<Property*>(static_cast<const Property*>(this)->GetChild(name));
}

std::string Property::GetChildString(const std::string& name, const std::string& defaultValue) const
{
    const Property* child = GetChild(name);
    return child ? child->GetString() : defaultValue;
}

Property& Property::AddChild(const std::string& name, const std::string& value)
{
    m_impl->children.emplace_back(name, value);
    return m_impl->children.back();
}

const std::list<Property>& Property::GetChildren() const
{
    return m_impl->children;
}

void Property::Clear()
{
    m_impl->value.clear();
    m_impl->children.clear();
}

} // namespace Ostrel::Core
