#include "Core/SettingsText_p.h"

#include <QDataStream>
#include <QFile>
#include <QList>
#include <QSettings>
#include <QTemporaryDir>
#include <QVariant>

#include <vector>

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

std::optional<int> firstUndecodableLine(const QByteArray& text)
{
    const QByteArray prefix = "@Variant(";
    const QList<QByteArray> lines = text.split('\n');
    std::vector<int> numbers;
    std::vector<QByteArray> values;
    for (int i = 0; i < lines.size(); ++i) {
        const QByteArray line = lines.at(i).trimmed();
        const int equals = line.indexOf('=');
        if (equals <= 0 || line.startsWith(';') || line.startsWith('#') || line.startsWith('['))
            continue;
        const QByteArray value = line.mid(equals + 1).trimmed();
        if (value.startsWith(prefix)) {
            numbers.push_back(i + 1);
            values.push_back(value);
        }
    }
    if (numbers.empty())
        return std::nullopt;
    // QSettings hands the bytes of "@ByteArray(...)" over unescaped: each value goes into a scratch
    // file as one, under a key of its own, and its bytes are decoded here as QSettings decodes
    // "@Variant(...)", but with the stream's verdict, which QSettings drops.
    const auto key = [](std::size_t n) { return QStringLiteral("v%1").arg(n); };
    QTemporaryDir dir;
    QFile scratch(dir.filePath(QStringLiteral("values.ini")));
    if (!dir.isValid() || !scratch.open(QIODevice::WriteOnly))
        return numbers.front(); // not known to decode: kept as it is
    scratch.write("[General]\n");
    for (std::size_t n = 0; n < values.size(); ++n)
        scratch.write(key(n).toLatin1() + "=@ByteArray(" + values.at(n).mid(prefix.size()) + '\n');
    scratch.close();
    const QSettings settings(scratch.fileName(), QSettings::IniFormat);
    for (std::size_t n = 0; n < values.size(); ++n) {
        const QVariant bytes = settings.value(key(n));
        // Without its closing bracket the value is text to QSettings, which is not what was stored.
        if (bytes.userType() != QMetaType::QByteArray)
            return numbers.at(n);
        QByteArray data = bytes.toByteArray();
        // A type known by name only: one this build lacks is told here, before Qt would warn.
        QDataStream header(&data, QIODevice::ReadOnly);
        header.setVersion(QDataStream::Qt_4_0);
        quint32 type = 0;
        QByteArray typeName;
        header >> type;
        constexpr quint32 NamedType = 127; // the marker of a type stored by name, in this stream version
        if (type == NamedType) {
            header >> typeName;
            if (header.status() != QDataStream::Ok ||
                QMetaType::type(typeName.constData()) == QMetaType::UnknownType)
                return numbers.at(n);
        }
        QDataStream stream(&data, QIODevice::ReadOnly);
        stream.setVersion(QDataStream::Qt_4_0);
        QVariant value;
        stream >> value;
        if (stream.status() != QDataStream::Ok || !value.isValid() || !stream.atEnd())
            return numbers.at(n);
    }
    return std::nullopt;
}

} // namespace Ostrel::App::SettingsText
