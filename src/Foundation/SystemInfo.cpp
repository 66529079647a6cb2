#include "Foundation/SystemInfo.h"
#include "Foundation/Utf8.h"

#include <QString>
#include <QSysInfo>

namespace Ostrel::Core {

int AppBits()
{
    return static_cast<int>(sizeof(void*) * 8);
}

std::string SystemName()
{
    return Util::QStringToUtf8(QSysInfo::prettyProductName());
}

std::string ProcessorArchitecture()
{
    return Util::QStringToUtf8(QSysInfo::currentCpuArchitecture());
}

} // namespace Ostrel::Core
