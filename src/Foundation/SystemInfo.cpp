#include "Foundation/SystemInfo.h"

#include <QString>
#include <QSysInfo>

namespace Ostrel::Core {

int AppBits()
{
    return static_cast<int>(sizeof(void*) * 8);
}

std::string SystemName()
{
    return QSysInfo::prettyProductName().toStdString();
}

std::string ProcessorArchitecture()
{
    return QSysInfo::currentCpuArchitecture().toStdString();
}

} // namespace Ostrel::Core
