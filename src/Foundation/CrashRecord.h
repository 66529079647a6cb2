#pragma once

#include "Foundation/ioPath.h"
#include "Foundation/ostrel_foundation_export.h"

namespace Ostrel::Core {

/// Records the exception being handled: meant to be the whole body of a last-resort
/// `catch (...)`. The exception's diagnostic text, stamped with the current UTC time (ISO 8601
/// with milliseconds), is appended as one record to the crash record file (CrashRecordPath())
/// and logged as one ERROR line. Called with no exception in flight it records "no exception
/// in flight".
///
/// Never throws and never terminates: if the record cannot be written, that is logged as well
/// and the call still returns. Safe to call from several threads at once.
OSTREL_FOUNDATION_EXPORT void TrackCurrentException() noexcept;

/// Where TrackCurrentException() writes: "crash.log" in the application's local data folder.
/// The folder is created on the first record, not here.
OSTREL_FOUNDATION_EXPORT ioPath CrashRecordPath();

} // namespace Ostrel::Core
