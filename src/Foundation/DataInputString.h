#pragma once

#include "Foundation/ostrel_foundation_export.h"

#include <cstddef>
#include <memory>
#include <string>

namespace Ostrel::Core {

/// A read cursor over bytes held in memory: the input that PropertySerializer reads from.
class OSTREL_FOUNDATION_EXPORT DataInputString
{
public:
    static std::shared_ptr<DataInputString> Create(std::string bytes);
    ~DataInputString();

    bool AtEnd() const;
    /// The next line without its line break ("\n", "\r\n" or a lone "\r"); empty at the end.
    std::string ReadLine();
    /// Current offset in bytes, from the start.
    std::size_t Position() const;
    const std::string& Data() const;

private:
    explicit DataInputString(std::string bytes);
    class Impl;
    std::unique_ptr<Impl> d;
};

} // namespace Ostrel::Core
