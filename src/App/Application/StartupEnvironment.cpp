#include "App/Application/StartupEnvironment.h"

#include "App/Application/ProcessList_p.h"
#include "Foundation/DyLib.h"

#include <QCoreApplication>
#include <QFileInfo>

namespace Ostrel::App {

void HighDpiFix()
{
    if (qEnvironmentVariableIsSet("OSTREL_DPI_POLICY") && qgetenv("OSTREL_DPI_POLICY") == "NOSCALE")
        return;

    // Looked up at run time: the function is missing on older systems, and the library on all
    // but one platform, where Qt's own scaling is the way.
    Core::DyLib shcore("Shcore.dll");
    using SetProcessDpiAwarenessFn = long(int);
    if (auto* setProcessDpiAwareness = shcore.resolve<SetProcessDpiAwarenessFn>("SetProcessDpiAwareness")) {
        constexpr int ProcessDpiUnaware = 0;
        setProcessDpiAwareness(ProcessDpiUnaware);
        return;
    }
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling, true);
}

void UseDesktopOpenGL()
{
    QCoreApplication::setAttribute(Qt::AA_UseDesktopOpenGL, true);
}

std::map<QString, QString> GetCurrentProcessMap(std::function<bool(const QString&)> filter)
{
    std::map<QString, QString> processes;
    const auto ids = ProcessList::processIds();
    if (!ids)
        return processes;
    for (const ProcessList::ProcessId id : *ids) {
        const QString path = ProcessList::imagePath(id);
        const QString name = QFileInfo(path).fileName().toLower();
        if (filter(name))
            processes[name] = path;
    }
    return processes;
}

} // namespace Ostrel::App
