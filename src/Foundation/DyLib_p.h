#pragma once

#include <string>

// The OS loader behind DyLib; one definition per platform. Handles are opaque to the caller.
namespace Ostrel::Core::DyLibPlatform {

/// The loaded library, or null with `error` saying why.
void* open(const std::string& name, std::string& error);
void close(void* handle);
void* symbol(void* handle, const char* name);

} // namespace Ostrel::Core::DyLibPlatform
