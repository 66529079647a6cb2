#include "Nag/NagFonts.h"

#include "Foundation/Utf8.h"
#include "QtUtil/FontDatabase.h"

#include <QDir>
#include <QFont>

namespace Ostrel::App::NagScreen {

void RegisterNagFonts()
{
    static const bool registered = []() {
        const QDir fonts(QStringLiteral(":/NagScreen/fonts"));
        for (const QString& name : fonts.entryList(QDir::Files, QDir::Name))
            Util::FontDatabase::addApplicationFont(Util::QStringToUtf8(fonts.filePath(name)));
        // The nags name the families of their style sheet; these faces draw them. A substitution
        // comes before the system's own fallback for a family it lacks, so the choice does not
        // depend on the machine's fontconfig aliases.
        for (const QString& family : {QStringLiteral("Arial"), QStringLiteral("Verdana")})
            QFont::insertSubstitution(family, QStringLiteral("DejaVu Sans"));
        return true;
    }();
    (void)registered;
}

} // namespace Ostrel::App::NagScreen
