#include "App/Application/AppMutexName_p.h"

#include "Foundation/SHA1.h"
#include "Foundation/Utf8.h"

namespace Ostrel::App {

// Two products of the shell on one machine must not share a lock. A digest of the names keeps any
// names short and safe in a file name; the line break keeps "ab"/"c" apart from "a"/"bc".
std::string AppMutexNameFor(const QString& organization, const QString& application)
{
    const std::string digest =
        Util::SHA1::digest(Util::QStringToUtf8(organization + QLatin1Char('\n') + application));
    return std::string(ApplicationMutexGuid) + '-' + digest.substr(0, 16);
}

} // namespace Ostrel::App
