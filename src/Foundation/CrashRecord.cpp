#include "Foundation/CrashRecord.h"

#include "Foundation/AppendFile.h"
#include "Foundation/PersonalDataMask.h"

#include <boost/core/demangle.hpp>
#include <boost/exception/diagnostic_information.hpp>
#include <glog/logging.h>

#include <QByteArray>
#include <QDateTime>
#include <QFileInfo>
#include <QStandardPaths>

#include <cxxabi.h>
#include <exception>
#include <mutex>

namespace Ostrel::Core {

namespace {

// Each record starts with this marker and its time stamp, so that records whose text spans
// several lines can still be told apart.
constexpr char RecordMarker[] = "==== ";

// The exception this thread recorded last. Held, not just compared by address, so that its
// object can not die and another exception be born at the same address.
std::exception_ptr& lastRecorded()
{
    thread_local std::exception_ptr recorded;
    return recorded;
}

std::string currentExceptionText()
{
    // Examining the exception means rethrowing it; with none in flight that rethrow would
    // terminate the process.
    if (!std::current_exception())
        return "no exception in flight";
    std::string text;
    try {
        throw;
    } catch (const std::exception&) {
        text = boost::current_exception_diagnostic_information(true);
    } catch (const boost::exception&) {
        text = boost::current_exception_diagnostic_information(true);
    } catch (...) {
        // No text to tell, only the type: the ABI of GCC and Clang (MinGW included) knows it.
        const std::type_info* type = abi::__cxa_current_exception_type();
        text = "Exception of type " + (type ? boost::core::demangle(type->name()) : std::string("<unknown>"));
    }
    while (!text.empty() && text.back() == '\n')
        text.pop_back();
    return text;
}

std::terminate_handler& previousTerminateHandler()
{
    static std::terminate_handler previous = nullptr;
    return previous;
}

[[noreturn]] void recordAndTerminate()
{
    // Two threads that terminate together would otherwise both write; the first one ends it.
    static std::once_flag recordOnce;
    std::call_once(recordOnce, []() { TrackCurrentException("std::terminate"); });
    if (const std::terminate_handler previous = previousTerminateHandler())
        previous();
    std::abort();
}

} // namespace

void TrackCurrentException(const std::string& context) noexcept
{
    try {
        if (CurrentExceptionRecorded())
            return;
        lastRecorded() = std::current_exception();
        // An exception's text may quote a URL with the user's data (an HTTP or a parsing error).
        const std::string text = PersonalDataMask::mask(currentExceptionText());
        LOG(ERROR) << "Exception recorded" << (context.empty() ? "" : " (" + context + ")") << ": " << text;

        const QByteArray stamp = QDateTime::currentDateTimeUtc().toString(Qt::ISODateWithMs).toUtf8();
        QByteArray record = RecordMarker + stamp + '\n';
        if (!context.empty())
            record += QByteArray::fromStdString(context) + '\n';
        record += QByteArray::fromStdString(text) + '\n';

        const QString path = CrashRecordPath().toQString();
        static std::mutex fileMutex;
        std::lock_guard<std::mutex> lock(fileMutex);
        // Without a home folder Qt has no data location; a relative path would land in whatever
        // the current folder happens to be.
        const bool written = !QFileInfo(path).isRelative() && AppendFile(path).append(record);
        if (!written)
            LOG(ERROR) << "Could not write the crash record to " << CrashRecordPath().utf8();
    } catch (...) {
        // Out of memory, most likely: nothing more can be done safely than saying so.
        LOG(ERROR) << "Could not record the exception in flight";
    }
}

bool CurrentExceptionRecorded() noexcept
{
    const std::exception_ptr current = std::current_exception();
    return current && current == lastRecorded();
}

void InstallTerminateRecorder() noexcept
{
    static std::once_flag installOnce;
    std::call_once(installOnce,
                   []() { previousTerminateHandler() = std::set_terminate(recordAndTerminate); });
}

ioPath CrashRecordPath()
{
    return ioPath(QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation)) / "crash.log";
}

} // namespace Ostrel::Core
