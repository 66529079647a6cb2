#include "QtUtil/HardwareInfoReport_p.h"

#include <QFile>

#include <sys/sysinfo.h>

namespace Ostrel::Util::Platform {

QString cpuModelName()
{
    QFile cpuinfo(QStringLiteral("/proc/cpuinfo"));
    if (!cpuinfo.open(QIODevice::ReadOnly))
        return {};
    // /proc files report a size of 0, which makes atEnd() true at once; readAll() reads to the real end.
    const QList<QByteArray> lines = cpuinfo.readAll().split('\n');
    for (const QByteArray& bytes : lines) {
        const QString line = QString::fromUtf8(bytes);
        const int colon = line.indexOf(QLatin1Char(':'));
        if (colon < 0)
            continue;
        // x86 says "model name"; several ARM kernels only give "Hardware" or "Model".
        const QString key = line.left(colon).trimmed();
        if (key == QLatin1String("model name") || key == QLatin1String("Model") ||
            key == QLatin1String("Hardware"))
            return line.mid(colon + 1).trimmed();
    }
    return {};
}

std::uint64_t totalPhysicalMemory()
{
    struct sysinfo info
    {
    };
    if (sysinfo(&info) != 0)
        return 0;
    return static_cast<std::uint64_t>(info.totalram) * info.mem_unit;
}

} // namespace Ostrel::Util::Platform
