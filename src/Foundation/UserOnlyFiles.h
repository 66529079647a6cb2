#pragma once

#include "Foundation/ostrel_foundation_export.h"

#include <QString>

namespace Ostrel::Core {

/// Files and folders that hold the user's own data (settings, tracking, crash records, logs) are
/// readable by the user alone: files 0600, folders 0700 where the platform has such modes. On
/// Windows the profile folder is already private to the user and these calls only create.
class OSTREL_FOUNDATION_EXPORT UserOnlyFiles
{
public:
    UserOnlyFiles() = delete;

    /// Creates `folder` and its missing parents, each created level user-only. Folders that
    /// exist are left as they are: the path may end in a shared folder ("/tmp"). False when
    /// `folder` is no folder afterwards.
    static bool makeFolder(const QString& folder);

    /// Creates an empty user-only `file` when there is none (its folder through makeFolder). An
    /// existing file keeps its content and its mode. False when there is no file afterwards.
    static bool prepareFile(const QString& file);
};

} // namespace Ostrel::Core
