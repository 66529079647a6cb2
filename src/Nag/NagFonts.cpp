#include "Nag/NagFonts.h"

#include "Foundation/Utf8.h"
#include "QtUtil/FontDatabase.h"

#include <QDir>

namespace Ostrel::App::NagScreen {

void RegisterNagFonts()
{
    static const bool registered = []() {
        const QDir fonts(QStringLiteral(":/NagScreen/fonts"));
        for (const QString& name : fonts.entryList(QDir::Files, QDir::Name))
            Util::FontDatabase::addApplicationFont(Util::QStringToUtf8(fonts.filePath(name)));
        return true;
    }();
    (void)registered;
}

} // namespace Ostrel::App::NagScreen
