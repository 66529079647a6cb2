#pragma once

#include <QString>

// The OS side of UserOnlyFiles; one definition per platform.
namespace Ostrel::Core::UserOnlyPlatform {

/// Creates `file` empty and user-only unless it exists. False when neither holds afterwards.
bool createFile(const QString& file);
/// Takes every right of the group and of others off a folder just created.
bool restrict(const QString& path);

} // namespace Ostrel::Core::UserOnlyPlatform
