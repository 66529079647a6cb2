#include "Core/SettingsText_p.h"

namespace Ostrel::App::SettingsText {

std::optional<bool> parseBool(const QString& text)
{
    const QString lower = text.trimmed().toLower();
    if (lower == QLatin1String("true") || lower == QLatin1String("1"))
        return true;
    if (lower == QLatin1String("false") || lower == QLatin1String("0"))
        return false;
    return std::nullopt;
}

} // namespace Ostrel::App::SettingsText
