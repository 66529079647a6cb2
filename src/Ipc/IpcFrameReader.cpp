#include "Ipc/IpcFrameReader.h"

#include <QtEndian>

namespace Ostrel::App {

namespace {
constexpr int HeaderSize = 4;

bool isValidUtf8(const QByteArray& bytes)
{
    return QString::fromUtf8(bytes).toUtf8() == bytes;
}
} // namespace

QByteArray IpcFrameReader::Encode(Type type, const QString& text)
{
    const QByteArray utf8 = text.toUtf8();
    if (utf8.size() + 1 > MaxPayload)
        return {};
    QByteArray frame(HeaderSize, '\0');
    qToBigEndian<quint32>(static_cast<quint32>(utf8.size() + 1), frame.data());
    frame.append(static_cast<char>(type));
    frame.append(utf8);
    return frame;
}

QVector<IpcFrameReader::Message> IpcFrameReader::Feed(const QByteArray& bytes)
{
    QVector<Message> messages;
    if (m_status != Status::Ok)
        return messages;
    m_buffer.append(bytes);
    while (m_buffer.size() >= HeaderSize) {
        const quint32 length = qFromBigEndian<quint32>(m_buffer.constData());
        if (length == 0 || length > static_cast<quint32>(MaxPayload)) {
            m_status = Status::Error;
            m_error = QStringLiteral("frame length %1 outside 1..%2").arg(length).arg(MaxPayload);
            m_buffer.clear();
            break;
        }
        if (m_buffer.size() < HeaderSize + static_cast<int>(length))
            break;
        const auto type = static_cast<quint8>(m_buffer.at(HeaderSize));
        const QByteArray text = m_buffer.mid(HeaderSize + 1, static_cast<int>(length) - 1);
        m_buffer.remove(0, HeaderSize + static_cast<int>(length));
        if (type != static_cast<quint8>(Type::OpenNag)) {
            m_status = Status::Error;
            m_error = QStringLiteral("unknown message type %1").arg(type);
            m_buffer.clear();
            break;
        }
        if (!isValidUtf8(text)) {
            m_status = Status::Error;
            m_error = QStringLiteral("message text is not UTF-8");
            m_buffer.clear();
            break;
        }
        messages.append(Message{Type::OpenNag, QString::fromUtf8(text)});
    }
    return messages;
}

IpcFrameReader::Status IpcFrameReader::GetStatus() const
{
    return m_status;
}

QString IpcFrameReader::Error() const
{
    return m_error;
}

int IpcFrameReader::Pending() const
{
    return m_buffer.size();
}

} // namespace Ostrel::App
