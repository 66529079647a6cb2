#pragma once

#include "Ipc/ostrel_ipc_export.h"

#include <QByteArray>
#include <QString>
#include <QVector>

namespace Ostrel::App {

/// The framing of messages between processes of the product: a 4-byte big-endian length, then
/// that many bytes of payload: one byte of message type and a UTF-8 text.
///
/// A frame longer than MaxPayload, without a type byte, of an unknown type or whose text isn't
/// valid UTF-8 is malformed: the reader stops (Error) and reads nothing more from that
/// connection, since after a bad length nothing that follows can be trusted.
class OSTREL_IPC_EXPORT IpcFrameReader
{
public:
    enum class Type : quint8
    {
        OpenNag = 1,
    };
    struct Message
    {
        Type type;
        QString text;
    };
    enum class Status
    {
        Ok,
        Error,
    };

    static constexpr int MaxPayload = 64 * 1024;

    /// The frame for a message; empty when the text is too long to frame.
    static QByteArray Encode(Type type, const QString& text);

    /// Adds received bytes; returns the messages now complete, in order.
    QVector<Message> Feed(const QByteArray& bytes);
    Status GetStatus() const;
    /// Why the reader stopped; empty while Ok.
    QString Error() const;
    /// Bytes received and not yet part of a complete frame.
    int Pending() const;

private:
    QByteArray m_buffer;
    Status m_status = Status::Ok;
    QString m_error;
};

} // namespace Ostrel::App
