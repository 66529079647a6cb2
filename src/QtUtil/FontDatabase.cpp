#include "QtUtil/FontDatabase.h"

#include "Foundation/Utf8.h"

#include <glog/logging.h>

#include <QFontDatabase>

namespace Ostrel::Util {

int FontDatabase::addApplicationFont(const std::string& path)
{
    const int id = QFontDatabase::addApplicationFont(Utf8ToQString(path));
    if (id < 0)
        LOG(WARNING) << "Cannot load the font [" << path << "]";
    return id;
}

} // namespace Ostrel::Util
