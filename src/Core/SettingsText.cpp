#include "Core/SettingsText_p.h"

#include <QList>

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

std::optional<int> firstMalformedLine(const QByteArray& text)
{
    // QSettings skips a UTF-8 byte order mark before the first line.
    const QList<QByteArray> lines = (text.startsWith("\xEF\xBB\xBF") ? text.mid(3) : text).split('\n');
    bool continued = false;
    for (int i = 0; i < lines.size(); ++i) {
        const QByteArray line = lines.at(i).trimmed();
        if (continued) {
            continued = line.endsWith('\\');
            continue;
        }
        if (line.isEmpty() || line.startsWith(';') || line.startsWith('#'))
            continue;
        if (line.startsWith('[')) {
            if (!line.endsWith(']'))
                return i + 1;
            continue;
        }
        if (line.indexOf('=') <= 0)
            return i + 1;
        continued = line.endsWith('\\');
    }
    return std::nullopt;
}

} // namespace Ostrel::App::SettingsText
