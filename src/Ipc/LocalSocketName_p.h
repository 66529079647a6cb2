#pragma once

#include <QString>

namespace Ostrel::App {

/// Where the server of `baseName` lives on this platform.
QString LocalSocketPath(const QString& baseName);
/// The login name of the current user, for the server's name.
QString CurrentUserName();

} // namespace Ostrel::App
