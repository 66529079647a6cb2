#include "Foundation/Property.h"

#include <algorithm>

namespace Ostrel::Core {

class Property::Impl
{
public:
    std::string name;
    std::string value;
    std::list<Property> children;
};

Property::Property() : d(std::make_unique<Impl>()) {}

Property::Property(const std::string& name, const std::string& value)
    : d(std::make_unique<Impl>(Impl{name, value, {}}))
{
}

Property::Property(const Property& other) : d(std::make_unique<Impl>(*other.d)) {}

// A moved-from property stays usable (empty), so that containers may move nodes freely.
Property::Property(Property&& other) noexcept : d(std::move(other.d))
{
    other.d = std::make_unique<Impl>();
}

Property& Property::operator=(const Property& other)
{
    if (this != &other)
        *d = *other.d;
    return *this;
}

Property& Property::operator=(Property&& other) noexcept
{
    if (this != &other) {
        d = std::move(other.d);
        other.d = std::make_unique<Impl>();
    }
    return *this;
}

Property::~Property() = default;

const std::string& Property::GetName() const
{
    return d->name;
}

void Property::SetName(const std::string& name)
{
    d->name = name;
}

const std::string& Property::GetString() const
{
    return d->value;
}

void Property::SetString(const std::string& value)
{
    d->value = value;
}

bool Property::ChildExists(const std::string& name) const
{
    return GetChild(name) != nullptr;
}

const Property* Property::GetChild(const std::string& name) const
{
    const auto it = std::find_if(d->children.begin(), d->children.end(),
                                 [&](const Property& child) { return child.GetName() == name; });
    return it == d->children.end() ? nullptr : &*it;
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
    d->children.emplace_back(name, value);
    return d->children.back();
}

const std::list<Property>& Property::GetChildren() const
{
    return d->children;
}

void Property::Clear()
{
    d->value.clear();
    d->children.clear();
}

} // namespace Ostrel::Core
