// Requests from another process: the framing of messages, the local socket server that only
// reacts to a whole, well-formed message, and the hand-over from a second process.

#include "Ipc/IpcFrameReader.h"
#include "Ipc/LocalSocketProtocol.h"

#include "LogCapture.h"
#include "TestEnvironment.h"

#include <QLocalSocket>
#include <QProcess>
#include <QtEndian>

using namespace Ostrel::App;

namespace {
QByteArray header(quint32 length)
{
    QByteArray bytes(4, '\0');
    qToBigEndian<quint32>(length, bytes.data());
    return bytes;
}
} // namespace

class IpcTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void framing_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QStringList>("messages");
        QTest::addColumn<bool>("error");
        const QByteArray one = IpcFrameReader::Encode(IpcFrameReader::Type::OpenNag, QStringLiteral("https://n.example/a"));
        const QByteArray two = IpcFrameReader::Encode(IpcFrameReader::Type::OpenNag, QStringLiteral("ü"));
        QTest::newRow("one frame") << one << QStringList{"https://n.example/a"} << false;
        QTest::newRow("two frames at once") << one + two << QStringList{"https://n.example/a", "ü"} << false;
        QTest::newRow("half a frame waits") << one.left(7) << QStringList{} << false;
        QTest::newRow("zero length") << header(0) << QStringList{} << true;
        QTest::newRow("oversized") << header(IpcFrameReader::MaxPayload + 1) << QStringList{} << true;
        QTest::newRow("unknown type") << header(2) + QByteArray("\x09x", 2) << QStringList{} << true;
        QTest::newRow("not UTF-8") << header(3) + QByteArray("\x01\xff\xfe", 3) << QStringList{} << true;
        QTest::newRow("good then bad") << one + header(0) << QStringList{"https://n.example/a"} << true;
    }
    void framing()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(QStringList, messages);
        QFETCH(bool, error);
        // Byte by byte and all at once must agree.
        for (const bool trickle : {false, true}) {
            IpcFrameReader reader;
            QStringList received;
            if (trickle) {
                for (char byte : bytes)
                    for (const auto& message : reader.Feed(QByteArray(1, byte)))
                        received << message.text;
            } else {
                for (const auto& message : reader.Feed(bytes))
                    received << message.text;
            }
            QCOMPARE(received, messages);
            QCOMPARE(reader.GetStatus() == IpcFrameReader::Status::Error, error);
        }
        QVERIFY(IpcFrameReader::Encode(IpcFrameReader::Type::OpenNag, QString(IpcFrameReader::MaxPayload, QLatin1Char('x')))
                    .isEmpty());
    }

    void aSecondProcessHandsOverItsRequest()
    {
        const QString product = QStringLiteral("Ostrel Tests/ipc %1").arg(QCoreApplication::applicationPid());
        LocalSocketProtocol server(product);
        QVERIFY(server.Listen());
        LocalSocketProtocol second(product);
        QVERIFY(!second.Listen()); // one listener per product and user
        QSignalSpy received(&server, &IPCBaseProtocol::OnOpenNagReceived);

        QProcess sender;
        sender.start(QStringLiteral(NAG_IPC_SENDER), {product, QStringLiteral("https://nags.example/promo?x=%C3%BC")});
        QTRY_COMPARE(received.size(), 1);
        QTRY_COMPARE_WITH_TIMEOUT(sender.state(), QProcess::NotRunning, 5000);
        QCOMPARE(sender.exitCode(), 0);
        QCOMPARE(received.at(0).at(0).toString(), QStringLiteral("https://nags.example/promo?x=%C3%BC"));

        // Nobody listening for another product: the sender says so.
        QProcess lonely;
        lonely.start(QStringLiteral(NAG_IPC_SENDER), {product + QStringLiteral("-other"), QStringLiteral("x")});
        QTRY_COMPARE_WITH_TIMEOUT(lonely.state(), QProcess::NotRunning, 10000);
        QCOMPARE(lonely.exitCode(), 1);
    }

    void aMalformedMessageIsDroppedAndTheServerGoesOn()
    {
        const QString product = QStringLiteral("Ostrel Tests/ipc bad %1").arg(QCoreApplication::applicationPid());
        LocalSocketProtocol server(product);
        QVERIFY(server.Listen());
        QSignalSpy received(&server, &IPCBaseProtocol::OnOpenNagReceived);
        Ostrel::Test::LogCapture log;
        QLocalSocket client;
        client.connectToServer(server.ServerName());
        QVERIFY(client.waitForConnected(2000));
        client.write(header(IpcFrameReader::MaxPayload * 4) + QByteArray(64, 'x'));
        client.flush();
        QTRY_COMPARE(client.state(), QLocalSocket::UnconnectedState);
        QCOMPARE(log.matching("Inter-process message dropped").size(), std::size_t(1));
        QCOMPARE(received.size(), 0);
        QProcess sender;
        sender.start(QStringLiteral(NAG_IPC_SENDER), {product, QStringLiteral("after")});
        QTRY_COMPARE(received.size(), 1);
        QTRY_COMPARE_WITH_TIMEOUT(sender.state(), QProcess::NotRunning, 5000);
    }

    void theSignalComesAfterTheConnectionIsDone()
    {
        const QString product = QStringLiteral("Ostrel Tests/ipc order %1").arg(QCoreApplication::applicationPid());
        LocalSocketProtocol server(product);
        QVERIFY(server.Listen());
        bool insideHandler = false;
        connect(&server, &IPCBaseProtocol::OnOpenNagReceived, this, [&](const QString&) {
            // A modal nag runs its own loop here; the client has its answer already.
            QEventLoop loop;
            QTimer::singleShot(50, &loop, &QEventLoop::quit);
            insideHandler = true;
            loop.exec();
        });
        QLocalSocket client;
        client.connectToServer(server.ServerName());
        QVERIFY(client.waitForConnected(2000));
        client.write(IpcFrameReader::Encode(IpcFrameReader::Type::OpenNag, QStringLiteral("u")));
        QTRY_VERIFY(client.bytesAvailable() > 0 || insideHandler);
        QTRY_VERIFY(insideHandler);
        QCOMPARE(client.read(1), QByteArray(1, '\x06'));
    }
};

OSTREL_TEST_MAIN(IpcTest)

#include "tst_ipc.moc"
