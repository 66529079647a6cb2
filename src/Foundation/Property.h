#pragma once

#include "Foundation/ostrel_foundation_export.h"

#include <list>
#include <memory>
#include <string>

namespace Ostrel::Core {

/// A named node with a UTF-8 string value and an ordered list of named children. Names need not
/// be unique; lookups by name take the first child of that name. Copies are deep.
class OSTREL_FOUNDATION_EXPORT Property
{
public:
    Property();
    explicit Property(const std::string& name, const std::string& value = std::string());
    Property(const Property& other);
    Property(Property&& other) noexcept;
    Property& operator=(const Property& other);
    Property& operator=(Property&& other) noexcept;
    ~Property();

    const std::string& GetName() const;
    void SetName(const std::string& name);
    const std::string& GetString() const;
    void SetString(const std::string& value);

    bool ChildExists(const std::string& name) const;
    /// The first child named `name`, or null.
    const Property* GetChild(const std::string& name) const;
    Property* GetChild(const std::string& name);
    /// The string of the first child named `name`, or `defaultValue` when there is none.
    std::string GetChildString(const std::string& name,
                               const std::string& defaultValue = std::string()) const;
    /// Appends a child and returns it; the reference stays valid while the child exists.
    Property& AddChild(const std::string& name, const std::string& value = std::string());
    const std::list<Property>& GetChildren() const;
    void Clear();

private:
    class Impl;
    std::unique_ptr<Impl> d;
};

} // namespace Ostrel::Core
