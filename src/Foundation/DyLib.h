#pragma once

#include "Foundation/ostrel_foundation_export.h"

#include <memory>
#include <string>

namespace Ostrel::Core {

/// A dynamic library loaded for as long as the object lives. Optional libraries are the common
/// case (a system DLL that older OS versions lack, a plug-in that is not installed), so failing
/// to load is not an error: the object simply reports isLoaded() false and every symbol as
/// missing, and the reason goes to the verbose log (VLOG(1)).
///
/// On Unix symbols stay private to the library (RTLD_LOCAL) and are all bound at load time
/// (RTLD_NOW), so a library with unresolved dependencies fails here rather than at a later call.
class OSTREL_FOUNDATION_EXPORT DyLib
{
public:
    /// Loads the library `name` (UTF-8): a bare name is looked up the way the OS loader does,
    /// a path is taken as is.
    explicit DyLib(const std::string& name);
    DyLib(DyLib&& other) noexcept;
    DyLib& operator=(DyLib&& other) noexcept;
    DyLib(const DyLib&) = delete;
    DyLib& operator=(const DyLib&) = delete;
    /// Unloads the library: pointers obtained from resolve() must not be used afterwards.
    ~DyLib();

    bool isLoaded() const;
    /// The name the library was opened with.
    std::string name() const;

    /// The symbol as a pointer to F (a function type such as `double(double)`, or an object
    /// type), or null when the library is not loaded or has no such symbol.
    template <class F> F* resolve(const char* symbol) const { return reinterpret_cast<F*>(address(symbol)); }

    /// The file (UTF-8 path) of the loaded library or program that holds `address`: how a library
    /// finds the plug-ins installed beside it wherever it is installed. Empty when unknown.
    static std::string fileOf(const void* address);

private:
    void* address(const char* symbol) const;

    class Impl;
    std::unique_ptr<Impl> d;
};

} // namespace Ostrel::Core
