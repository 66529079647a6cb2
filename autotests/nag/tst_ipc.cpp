// Requests from another process: the framing of messages, the local socket server that only
// reacts to a whole, well-formed message, one a connection, with connections capped in number and
// time, the endpoint only in a folder of the user alone, and the hand-over from a second process.

#include "Ipc/IpcFrameReader.h"
#include "Ipc/LocalSocketProtocol.h"

#include "LogCapture.h"
#include "ScopedEnvironmentVariable.h"
#include "TestEnvironment.h"

#include <QAbstractEventDispatcher>
#include <QDir>
#include <QFile>
#include <QLocalSocket>
#include <QProcess>
#include <QTemporaryDir>
#include <QtEndian>

#include <algorithm>
#include <memory>

using namespace Ostrel::App;

namespace {
QByteArray header(quint32 length)
{
    QByteArray bytes(4, '\0');
    qToBigEndian<quint32>(length, bytes.data());
    return bytes;
}

QString uniqueProduct(const char* test)
{
    return QStringLiteral("Ostrel Tests/ipc %1 %2")
        .arg(QLatin1String(test))
        .arg(QCoreApplication::applicationPid());
}

std::unique_ptr<QLocalSocket> connectedClient(const QString& name)
{
    auto client = std::make_unique<QLocalSocket>();
    client->connectToServer(name);
    client->waitForConnected(2000);
    return client;
}

// A client that connects and then says nothing.
std::unique_ptr<QLocalSocket> stalledClient(const QString& name)
{
    auto client = connectedClient(name);
    client->write(QByteArray(2, '\0')); // half a length
    client->flush();
    return client;
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
        const QByteArray one =
            IpcFrameReader::Encode(IpcFrameReader::Type::OpenNag, QStringLiteral("https://n.example/a"));
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
        QVERIFY(IpcFrameReader::Encode(IpcFrameReader::Type::OpenNag,
                                       QString(IpcFrameReader::MaxPayload, QLatin1Char('x')))
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
        sender.start(QStringLiteral(NAG_IPC_SENDER),
                     {product, QStringLiteral("https://nags.example/promo?x=%C3%BC")});
        QTRY_COMPARE(received.size(), 1);
        QTRY_COMPARE_WITH_TIMEOUT(sender.state(), QProcess::NotRunning, 5000);
        QCOMPARE(sender.exitCode(), 0);
        QCOMPARE(received.at(0).at(0).toString(), QStringLiteral("https://nags.example/promo?x=%C3%BC"));

        // Nobody listening for another product: the sender says so.
        QProcess lonely;
        lonely.start(QStringLiteral(NAG_IPC_SENDER),
                     {product + QStringLiteral("-other"), QStringLiteral("x")});
        QTRY_COMPARE_WITH_TIMEOUT(lonely.state(), QProcess::NotRunning, 10000);
        QCOMPARE(lonely.exitCode(), 1);
    }

    void aLockNamingNoOwnerIsTakenOver_data()
    {
        QTest::addColumn<QByteArray>("lock");
        QTest::newRow("empty: killed before writing its id") << QByteArray();
        QTest::newRow("garbage") << QByteArray("\x01\x02 not a lock\n");
    }
    void aLockNamingNoOwnerIsTakenOver()
    {
        QFETCH(QByteArray, lock);
        const QString product = uniqueProduct("stale");
        QFile file(LocalSocketProtocol::ServerNameFor(product) + QStringLiteral(".lock"));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(lock);
        file.close();
        Ostrel::Test::LogCapture log;
        LocalSocketProtocol server(product);
        QVERIFY(server.Listen());
        QCOMPARE(log.matching("named no owner; this instance takes it over").size(), std::size_t(1));
    }

    void aMalformedMessageIsDroppedAndTheServerGoesOn()
    {
        const QString product =
            QStringLiteral("Ostrel Tests/ipc bad %1").arg(QCoreApplication::applicationPid());
        LocalSocketProtocol server(product);
        QVERIFY(server.Listen());
        QSignalSpy received(&server, &IPCBaseProtocol::OnOpenNagReceived);
        Ostrel::Test::LogCapture log;
        const auto client = connectedClient(server.ServerName());
        QCOMPARE(client->state(), QLocalSocket::ConnectedState);
        client->write(header(IpcFrameReader::MaxPayload * 4) + QByteArray(64, 'x'));
        client->flush();
        QTRY_COMPARE(client->state(), QLocalSocket::UnconnectedState);
        QCOMPARE(log.matching("Inter-process message dropped").size(), std::size_t(1));
        QCOMPARE(received.size(), 0);
        QProcess sender;
        sender.start(QStringLiteral(NAG_IPC_SENDER), {product, QStringLiteral("after")});
        QTRY_COMPARE(received.size(), 1);
        QTRY_COMPARE_WITH_TIMEOUT(sender.state(), QProcess::NotRunning, 5000);
    }

    void aConnectionCarriesOneRequest()
    {
        LocalSocketProtocol server(uniqueProduct("one"));
        QVERIFY(server.Listen());
        // A deadline far away: the connection's timer must end with the connection, not at it.
        server.SetConnectionLimits(LocalSocketProtocol::DefaultMaxConnections, 600000);
        const QObjectList timersBefore = QAbstractEventDispatcher::instance()->children();
        QSignalSpy received(&server, &IPCBaseProtocol::OnOpenNagReceived);
        Ostrel::Test::LogCapture log;
        const auto client = connectedClient(server.ServerName());
        QCOMPARE(client->state(), QLocalSocket::ConnectedState);
        QByteArray burst;
        for (int i = 0; i < 2000; ++i)
            burst += IpcFrameReader::Encode(IpcFrameReader::Type::OpenNag, QStringLiteral("n%1").arg(i));
        client->write(burst);
        QTRY_COMPARE(received.size(), 1);
        QTRY_COMPARE(client->state(), QLocalSocket::UnconnectedState);
        QCOMPARE(received.at(0).at(0).toString(), QStringLiteral("n0"));
        QVERIFY(!log.matching("a connection carries one request").empty());
        QCOMPARE(received.size(), 1);
        // A timer left behind by the ended connection would pile up under a stream of requests.
        QTRY_VERIFY(std::all_of(QAbstractEventDispatcher::instance()->children().cbegin(),
                                QAbstractEventDispatcher::instance()->children().cend(),
                                [&](QObject* timer) { return timersBefore.contains(timer); }));
    }

    void connectionsAreCappedInNumberAndTime()
    {
        const QString product = uniqueProduct("cap");
        LocalSocketProtocol server(product);
        QVERIFY(server.Listen());
        server.SetConnectionLimits(2, 500);
        QSignalSpy received(&server, &IPCBaseProtocol::OnOpenNagReceived);
        Ostrel::Test::LogCapture log;
        const auto first = stalledClient(server.ServerName());
        const auto second = stalledClient(server.ServerName());
        const auto third = stalledClient(server.ServerName());
        QTRY_COMPARE(third->state(), QLocalSocket::UnconnectedState);
        QCOMPARE(log.matching("connections are open already").size(), std::size_t(1));
        // The stalled ones are dropped at their deadline, and the server takes requests again.
        QTRY_COMPARE(first->state(), QLocalSocket::UnconnectedState);
        QTRY_COMPARE(second->state(), QLocalSocket::UnconnectedState);
        QCOMPARE(log.matching("sent nothing whole in time").size(), std::size_t(2));
        QProcess sender;
        sender.start(QStringLiteral(NAG_IPC_SENDER), {product, QStringLiteral("after the stalled ones")});
        QTRY_COMPARE(received.size(), 1);
        QTRY_COMPARE_WITH_TIMEOUT(sender.state(), QProcess::NotRunning, 5000);
        QCOMPARE(sender.exitCode(), 0);
    }

    void noEndpointOutsideAFolderOfTheUserAlone_data()
    {
        QTest::addColumn<QString>("kind");
        QTest::newRow("no runtime folder") << "unset";
        QTest::newRow("runtime folder open to others") << "0755";
        QTest::newRow("runtime folder is a file") << "file";
        QTest::newRow("runtime folder is a link") << "link";
    }
    void noEndpointOutsideAFolderOfTheUserAlone()
    {
        QFETCH(QString, kind);
        QTemporaryDir temp;
        const QString folder = temp.filePath(QStringLiteral("run"));
        Ostrel::Test::ScopedEnvironmentVariable runtimeDir("XDG_RUNTIME_DIR");
        if (kind == QLatin1String("unset")) {
            runtimeDir.unset();
        } else {
            if (kind == QLatin1String("file")) {
                QFile file(folder);
                QVERIFY(file.open(QIODevice::WriteOnly));
            } else if (kind == QLatin1String("link")) {
                QVERIFY(QDir().mkdir(temp.filePath(QStringLiteral("real"))));
                QFile::setPermissions(temp.filePath(QStringLiteral("real")),
                                      QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
                QVERIFY(QFile::link(temp.filePath(QStringLiteral("real")), folder));
            } else {
                QVERIFY(QDir().mkdir(folder));
                QFile::setPermissions(folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner |
                                                  QFile::ReadOther | QFile::ExeOther | QFile::ReadGroup |
                                                  QFile::ExeGroup);
            }
            runtimeDir.set(QFile::encodeName(folder));
        }
        Ostrel::Test::LogCapture log;
        const QString product = uniqueProduct("folder");
        LocalSocketProtocol server(product);
        const bool listened = server.Listen();
        const bool sent = LocalSocketProtocol::SendOpenNag(product, QStringLiteral("x"), 200);
        QVERIFY(!listened);
        QVERIFY(!sent);
        QVERIFY(server.ServerName().isEmpty());
        QCOMPARE(log.matching("Requests of other processes are off").size(), std::size_t(1));
        QCOMPARE(log.matching("is not handed to another instance").size(), std::size_t(1));
        QCOMPARE(QDir(temp.path()).entryList(QDir::NoDotAndDotDot | QDir::AllEntries | QDir::System).size(),
                 kind == QLatin1String("unset")  ? 0
                 : kind == QLatin1String("link") ? 2
                                                 : 1);
    }

    void theSignalComesAfterTheConnectionIsDone()
    {
        const QString product =
            QStringLiteral("Ostrel Tests/ipc order %1").arg(QCoreApplication::applicationPid());
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
