#include "QtUtil/HardwareInfoReport.h"

#include "Foundation/Utf8.h"
#include "Interfaces/ICustomizationManager.h"
#include "QtUtil/ApplicationVisibleVersion.h"
#include "QtUtil/HardwareInfoReport_p.h"

#include <QGuiApplication>
#include <QScreen>
#include <QStringList>
#include <QSysInfo>
#include <QThread>

namespace Ostrel::Util {

namespace {

QString memoryText(std::uint64_t bytes)
{
    if (bytes == 0)
        return QStringLiteral("unknown");
    return QStringLiteral("%1 MiB").arg(bytes / (1024 * 1024));
}

QStringList screenLines()
{
    // QGuiApplication::screens() needs the GUI application; a console tool simply has no screens.
    QStringList lines;
    if (qobject_cast<QGuiApplication*>(QCoreApplication::instance())) {
        const QList<QScreen*> screens = QGuiApplication::screens();
        int index = 0;
        for (const QScreen* screen : screens) {
            const QRect geometry = screen->geometry();
            lines << QStringLiteral("Screen %1: %2x%3 at %4,%5, device pixel ratio %6")
                         .arg(++index)
                         .arg(geometry.width())
                         .arg(geometry.height())
                         .arg(geometry.x())
                         .arg(geometry.y())
                         .arg(screen->devicePixelRatio());
        }
    }
    if (lines.isEmpty())
        lines << QStringLiteral("Screens: none");
    return lines;
}

} // namespace

QString GetHardwareInfo(const Ostrel::App::ICustomizationManager& customization)
{
    const std::string version = customization.GetVersion();
    QString cpuModel = Platform::cpuModelName();
    if (cpuModel.isEmpty())
        cpuModel = QStringLiteral("unknown model");

    QStringList lines;
    lines << QStringLiteral("Application: %1 %2 (%3)")
                 .arg(Utf8ToQString(customization.GetApplicationName()),
                      GenerateApplicationVisibleVersion(version), Utf8ToQString(version));
    lines << QStringLiteral("OS: %1, kernel %2 %3")
                 .arg(QSysInfo::prettyProductName(), QSysInfo::kernelType(), QSysInfo::kernelVersion());
    lines << QStringLiteral("CPU: %1, %2 logical cores, %3")
                 .arg(QSysInfo::currentCpuArchitecture())
                 .arg(QThread::idealThreadCount())
                 .arg(cpuModel);
    lines << QStringLiteral("Memory: %1").arg(memoryText(Platform::totalPhysicalMemory()));
    lines << screenLines();
    return lines.join(QLatin1Char('\n'));
}

} // namespace Ostrel::Util
