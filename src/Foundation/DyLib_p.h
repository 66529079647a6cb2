#pragma once

#include <string>

// The OS loader behind DyLib; one definition per platform. Handles are opaque to the caller.
namespace Ostrel::Core::DyLibPlatform {

/// The loaded library, or null with `error` saying why.
void* open(const std::string& name, std::string& error);
void close(void* handle);
void* symbol(void* handle, const char* name);
/// The path of the module that holds `address`, UTF-8; empty when none does.
std::string fileOf(const void* address);

} // namespace Ostrel::Core::DyLibPlatform
