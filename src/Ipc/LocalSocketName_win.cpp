#include "Ipc/LocalSocketName_p.h"

#include <windows.h>

namespace Ostrel::App {

QString LocalSocketPath(const QString& baseName)
{
    // A bare name is a pipe in the session's namespace.
    return baseName;
}

QString CurrentUserName()
{
    wchar_t name[257] = {};
    DWORD size = 257;
    if (GetUserNameW(name, &size))
        return QString::fromWCharArray(name);
    return QStringLiteral("user");
}

} // namespace Ostrel::App
