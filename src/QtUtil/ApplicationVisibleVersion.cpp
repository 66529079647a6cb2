#include "QtUtil/ApplicationVisibleVersion.h"

#include "Foundation/Utf8.h"

#include <QStringList>

namespace Ostrel::Util {

namespace {

bool isDecimalNumber(const QString& part)
{
    if (part.isEmpty())
        return false;
    for (const QChar c : part) {
        // QChar::isDigit() would also accept non-ASCII digits, which are no version of ours.
        if (c < QLatin1Char('0') || c > QLatin1Char('9'))
            return false;
    }
    return true;
}

bool isZero(const QString& part)
{
    for (const QChar c : part) {
        if (c != QLatin1Char('0'))
            return false;
    }
    return true;
}

} // namespace

QString GenerateApplicationVisibleVersion(const std::string& version)
{
    const QString trimmed = Utf8ToQString(version).trimmed();
    QStringList parts = trimmed.split(QLatin1Char('.'));
    for (const QString& part : parts) {
        if (!isDecimalNumber(part))
            return trimmed;
    }
    while (parts.size() > 2 && isZero(parts.last()))
        parts.removeLast();
    return parts.join(QLatin1Char('.'));
}

} // namespace Ostrel::Util
