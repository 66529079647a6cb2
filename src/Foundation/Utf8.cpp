#include "Foundation/Utf8.h"

#include <QByteArray>

namespace Ostrel::Util {

std::string QStringToUtf8(const QString& text)
{
    const QByteArray bytes = text.toUtf8();
    return std::string(bytes.constData(), static_cast<std::size_t>(bytes.size()));
}

QString Utf8ToQString(const std::string& text)
{
    // The size is passed explicitly so that embedded NUL bytes survive the trip.
    return QString::fromUtf8(text.data(), static_cast<int>(text.size()));
}

} // namespace Ostrel::Util
