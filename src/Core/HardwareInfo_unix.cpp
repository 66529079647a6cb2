#include "Core/HardwareInfo_p.h"

#include <QFile>
#include <QStringList>

namespace Ostrel::App::Platform {

QByteArray readMachineId(QString* source)
{
    // Older systems only have the D-Bus copy.
    const QStringList candidates = {QStringLiteral("/etc/machine-id"),
                                    QStringLiteral("/var/lib/dbus/machine-id")};
    for (const QString& path : candidates) {
        QFile file(path);
        if (!file.open(QIODevice::ReadOnly))
            continue;
        const QByteArray id = file.readAll().trimmed();
        if (!id.isEmpty()) {
            *source = path;
            return id;
        }
    }
    *source = candidates.join(QStringLiteral(" or "));
    return {};
}

} // namespace Ostrel::App::Platform
