// What another process may ask of the running product, asked through the real host: a request
// for anything the product would not show loads nothing, a flood leaves the product answering with
// one nag on screen, and a client that stalls keeps nobody else waiting.

#include "HostProcess.h"

#include "Ipc/IpcFrameReader.h"
#include "Ipc/LocalSocketProtocol.h"

#include "TestEnvironment.h"

#include <QDir>
#include <QFile>
#include <QLocalSocket>
#include <QTcpServer>
#include <QTemporaryDir>

#include <memory>

using namespace Ostrel::App;

namespace {
constexpr int StartMs = 60000;
constexpr int HandOffMs = 30000;
} // namespace

class RequestsTest : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_root;
    QString m_runtime;
    std::unique_ptr<HostProcess> m_primary;
    int m_secondaries = 0;

    // A second host that hands `url` to the primary; true when it did.
    bool handOff(const QString& url)
    {
        HostProcess second(m_root.filePath(QStringLiteral("second%1").arg(++m_secondaries)), m_runtime);
        second.start({QStringLiteral("--no-start-nag"), QStringLiteral("--open-nag=") + url});
        if (!second.waitForExit(HandOffMs))
            return false;
        return second.exitCode() == 0 && second.log().contains(QStringLiteral("The running instance shows"));
    }

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(m_root.isValid());
        m_runtime = m_root.filePath(QStringLiteral("runtime"));
        QVERIFY(HostProcess::MakeRuntimeFolder(m_runtime));
        // The session this test's clients share with the hosts.
        qputenv("XDG_RUNTIME_DIR", QFile::encodeName(m_runtime));
        m_primary = std::make_unique<HostProcess>(m_root.filePath(QStringLiteral("primary")), m_runtime);
        // Lets a QML that gets loaded write a marker file, as content in the wild could.
        m_primary->addEnvironment(QStringLiteral("QML_XHR_ALLOW_FILE_WRITE=1"));
        m_primary->start({QStringLiteral("--no-start-nag")});
        QVERIFY2(m_primary->waitForLog(QStringLiteral("Listening for requests of other processes"), StartMs),
                 qPrintable(m_primary->log()));
    }

    void cleanupTestCase()
    {
        if (m_primary)
            m_primary->stop();
    }

    void nothingNamedByAnotherProcessRuns_data()
    {
        QTest::addColumn<QString>("kind");
        QTest::newRow("local QML file") << "file";
        QTest::newRow("remote QML on another host") << "remote";
        QTest::newRow("empty address") << "empty";
        QTest::newRow("malformed address") << "malformed";
    }
    void nothingNamedByAnotherProcessRuns()
    {
        QFETCH(QString, kind);
        static int row = 0;
        const QString folder = m_root.filePath(QStringLiteral("evil%1").arg(++row));
        QVERIFY(QDir().mkpath(folder));
        const QString marker = folder + QStringLiteral("/marker");
        QFile qml(folder + QStringLiteral("/main.qml"));
        QVERIFY(qml.open(QIODevice::WriteOnly));
        qml.write(QStringLiteral("import QtQuick 2.0\n"
                                 "Item {\n"
                                 "    Component.onCompleted: {\n"
                                 "        console.log('EVIL QML RAN');\n"
                                 "        var request = new XMLHttpRequest();\n"
                                 "        request.open('PUT', '%1');\n"
                                 "        request.send('ran');\n"
                                 "    }\n"
                                 "}\n")
                      .arg(QUrl::fromLocalFile(marker).toString())
                      .toUtf8());
        qml.close();
        // A server that would see the remote QML fetched.
        QTcpServer remote;
        QVERIFY(remote.listen(QHostAddress::LocalHost));
        QString url;
        if (kind == QLatin1String("file"))
            url = QUrl::fromLocalFile(qml.fileName()).toString();
        else if (kind == QLatin1String("remote"))
            url = QStringLiteral("http://127.0.0.1:%1/main.qml").arg(remote.serverPort());
        else if (kind == QLatin1String("malformed"))
            url = QStringLiteral("https://[::1");

        QVERIFY(handOff(url));
        const QString refusal = QStringLiteral("Nag request refused");
        const auto ran = [&]() {
            return m_primary->log().contains(QStringLiteral("EVIL QML RAN")) || QFile::exists(marker) ||
                   remote.hasPendingConnections();
        };
        // Whichever comes first: the refusal, or what the request named running.
        QVERIFY2(
            QTest::qWaitFor([&]() { return m_primary->log().count(refusal) == row || ran(); }, HandOffMs),
            qPrintable(m_primary->log()));
        QVERIFY(!m_primary->log().contains(QStringLiteral("EVIL QML RAN")));
        QVERIFY(!QFile::exists(marker));
        QVERIFY(!remote.hasPendingConnections());
        QVERIFY(m_primary->log().contains(QStringLiteral("\"%1\"").arg(url)));
        QVERIFY(!m_primary->trackingEvents().contains(QStringLiteral("NAG_SHOW")));
    }

    void aStalledClientKeepsNobodyWaiting()
    {
        QLocalSocket stalled;
        stalled.connectToServer(LocalSocketProtocol::ServerNameFor(HostProcess::Product()));
        QVERIFY(stalled.waitForConnected(5000));
        stalled.write(QByteArray(2, '\0')); // half a frame's length, and then nothing
        QVERIFY(stalled.waitForBytesWritten(5000));
        QVERIFY(handOff(QStringLiteral("https://[::1")));
        QTRY_COMPARE_WITH_TIMEOUT(stalled.state(), QLocalSocket::UnconnectedState, HandOffMs);
        QVERIFY(m_primary->log().contains(QStringLiteral("sent nothing whole in time")));
    }

    // Last: the nag it leaves on screen stays until the host ends.
    void aBurstLeavesTheProductAnsweringWithOneNagOnScreen()
    {
        QByteArray burst;
        const QByteArray frame = IpcFrameReader::Encode(IpcFrameReader::Type::OpenNag, HostProcess::OwnNag());
        for (int i = 0; i < 2000; ++i)
            burst += frame;
        // 2,000 frames on one connection, and as many connections as the system takes at once.
        std::vector<std::unique_ptr<QLocalSocket>> clients;
        for (int i = 0; i < 50; ++i) {
            auto client = std::make_unique<QLocalSocket>();
            client->connectToServer(LocalSocketProtocol::ServerNameFor(HostProcess::Product()));
            if (client->waitForConnected(5000)) {
                client->write(i == 0 ? burst : frame);
                client->flush();
            }
            clients.push_back(std::move(client));
        }
        QVERIFY(clients.front()->state() != QLocalSocket::UnconnectedState ||
                clients.front()->bytesAvailable() > 0);
        QVERIFY2(QTest::qWaitFor(
                     [&]() { return m_primary->trackingEvents().contains(QStringLiteral("NAG_SHOW")); },
                     HandOffMs),
                 qPrintable(m_primary->log()));
        // Still answering, while the nag is on screen and the requests wait behind it.
        QVERIFY(handOff(HostProcess::OwnNag()));
        QVERIFY(m_primary->isRunning());
        QCOMPARE(m_primary->trackingEvents().count(QStringLiteral("NAG_SHOW")), 1);
        QVERIFY(!m_primary->trackingEvents().contains(QStringLiteral("NAG_CLOSE")));
    }
};

OSTREL_TEST_MAIN(RequestsTest)

#include "tst_requests.moc"
