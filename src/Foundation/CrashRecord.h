#pragma once

#include "Foundation/ioPath.h"
#include "Foundation/ostrel_foundation_export.h"

#include <string>

namespace Ostrel::Core {

/// Records the exception being handled: meant to be the whole body of a last-resort
/// `catch (...)`. The exception's diagnostic text (its dynamic type for one that is no
/// `std::exception`), stamped with the current UTC time (ISO 8601 with milliseconds) and
/// preceded by `context` when given (where it was caught), is appended as one record to the crash
/// record file (CrashRecordPath()) and logged as one ERROR line. Called with no exception in
/// flight it records "no exception in flight".
///
/// An exception is recorded once: a handler further out that catches the same exception again
/// (after a rethrow) leaves no second record. CurrentExceptionRecorded() tells it beforehand.
///
/// Never throws and never terminates: if the record cannot be written, that is logged as well
/// and the call still returns. Safe to call from several threads at once.
OSTREL_FOUNDATION_EXPORT void TrackCurrentException(const std::string& context = std::string()) noexcept;

/// True when the exception being handled on this thread was recorded already.
OSTREL_FOUNDATION_EXPORT bool CurrentExceptionRecorded() noexcept;

/// Makes `std::terminate` record what it received (an exception that no handler took: a
/// non-`std` one, one leaving a thread's body, a destructor or a `noexcept` function) before the
/// handler that was in place ends the process as it would have. Installing twice is harmless.
OSTREL_FOUNDATION_EXPORT void InstallTerminateRecorder() noexcept;

/// Where TrackCurrentException() writes: "crash.log" in the application's local data folder.
/// The folder is created on the first record, not here. Past the size cap of AppendFile the
/// older records move to "crash.log.1".
OSTREL_FOUNDATION_EXPORT ioPath CrashRecordPath();

} // namespace Ostrel::Core
