#pragma once

#include <QString>

#include <string>

// The name of the application mutex, one definition per platform.
namespace Ostrel::App {

/// Where the name of every product's application mutex starts.
inline constexpr char ApplicationMutexGuid[] = "{3C1F7A92-5D08-4E6B-9A14-7E2B60D4C81F}";

/// The application mutex's name for the product called `application` of `organization`.
std::string AppMutexNameFor(const QString& organization, const QString& application);

} // namespace Ostrel::App
