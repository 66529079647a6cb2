// Which process of the user takes the requests of the others, tried with the real host: of two
// started together exactly one listens and gets the other's request, and an endpoint that is not
// the user's own (something squatting at the socket's path, a runtime folder open to others)
// receives nothing.

#include "HostProcess.h"

#include "Ipc/LocalSocketProtocol.h"

#include "ScopedEnvironmentVariable.h"
#include "TestEnvironment.h"

#include <QDir>
#include <QFile>
#include <QLocalServer>
#include <QTemporaryDir>

#include <memory>

#include <unistd.h>

using namespace Ostrel::App;

namespace {
constexpr int StartMs = 60000;
constexpr QFile::Permissions UserOnly = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner;
} // namespace

class InstanceTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void ofTwoStartedTogetherOneListensAndGetsTheOthersRequest()
    {
        QTemporaryDir root;
        const QString runtime = root.filePath(QStringLiteral("runtime"));
        QVERIFY(HostProcess::MakeRuntimeFolder(runtime));
        HostProcess first(root.filePath(QStringLiteral("first")), runtime);
        HostProcess second(root.filePath(QStringLiteral("second")), runtime);
        const QStringList arguments{QStringLiteral("--no-start-nag"),
                                    QStringLiteral("--open-nag=") + HostProcess::OwnNag()};
        first.start(arguments);
        second.start(arguments);

        QVERIFY(QTest::qWaitFor([&]() { return !first.isRunning() || !second.isRunning(); }, StartMs));
        HostProcess& loser = first.isRunning() ? second : first;
        HostProcess& primary = first.isRunning() ? first : second;
        QCOMPARE(loser.exitCode(), 0);
        QVERIFY2(loser.log().contains(QStringLiteral("The running instance shows the requested nag")),
                 qPrintable(loser.log()));
        QVERIFY(!loser.log().contains(QStringLiteral("Listening for requests")));
        QVERIFY2(primary.waitForLog(QStringLiteral("Request of another process received"), StartMs),
                 qPrintable(primary.log()));
        QCOMPARE(primary.log().count(QStringLiteral("Listening for requests")), 1);
        QVERIFY(primary.isRunning());
    }

    void aSquattedEndpointReceivesNothing_data()
    {
        QTest::addColumn<QString>("squatter");
        QTest::newRow("a file at the socket's path") << "file";
        QTest::newRow("another user's socket at the path") << "foreign socket";
        QTest::newRow("a runtime folder open to others") << "open folder";
    }
    void aSquattedEndpointReceivesNothing()
    {
        QFETCH(QString, squatter);
        QTemporaryDir root;
        const QString runtime = root.filePath(QStringLiteral("runtime"));
        QVERIFY(HostProcess::MakeRuntimeFolder(runtime));
        Ostrel::Test::ScopedEnvironmentVariable runtimeDir("XDG_RUNTIME_DIR");
        runtimeDir.set(QFile::encodeName(runtime));
        const QString path = LocalSocketProtocol::ServerNameFor(HostProcess::Product());
        runtimeDir.restore();
        QVERIFY(!path.isEmpty());

        QLocalServer squatting;
        if (squatter == QLatin1String("file")) {
            QFile file(path);
            QVERIFY(file.open(QIODevice::WriteOnly));
            file.write("mine");
        } else {
            QVERIFY(squatting.listen(path));
            if (squatter == QLatin1String("foreign socket")) {
                if (::geteuid() != 0)
                    QSKIP("Giving the socket to another user takes root");
                QCOMPARE(::chown(QFile::encodeName(path).constData(), 65534, 65534), 0);
            } else {
                QVERIFY(QFile::setPermissions(runtime, UserOnly | QFile::ReadOther | QFile::ExeOther |
                                                           QFile::ReadGroup | QFile::ExeGroup));
            }
        }

        HostProcess first(root.filePath(QStringLiteral("first")), runtime);
        first.start({QStringLiteral("--no-start-nag")});
        const QString refused = squatter == QLatin1String("open folder")
                                    ? QStringLiteral("Requests of other processes are off")
                                    : QStringLiteral("Cannot listen for requests");
        QVERIFY2(first.waitForLog(refused, StartMs), qPrintable(first.log()));

        HostProcess second(root.filePath(QStringLiteral("second")), runtime);
        // Nothing will answer: a short hand-off keeps the row quick.
        second.start({QStringLiteral("--no-start-nag"), QStringLiteral("--quit-after=0"),
                      QStringLiteral("--hand-off-timeout=300"),
                      QStringLiteral("--open-nag=") + HostProcess::OwnNag()});
        QVERIFY2(second.waitForExit(StartMs), qPrintable(second.log()));
        QCOMPARE(second.exitCode(), 0);
        // It went on by itself instead of handing the request to whatever squats there.
        QVERIFY2(
            second.log().contains(squatter == QLatin1String("open folder")
                                      ? QStringLiteral("Requests of other processes are off")
                                      : QStringLiteral("No running instance took the nag request in time")),
            qPrintable(second.log()));
        QVERIFY(!squatting.hasPendingConnections());
        QVERIFY(first.isRunning());
        if (squatter == QLatin1String("file")) {
            QFile file(path);
            QVERIFY(file.open(QIODevice::ReadOnly));
            QCOMPARE(file.readAll(), QByteArray("mine"));
        }
    }
};

OSTREL_TEST_MAIN(InstanceTest)

#include "tst_instance.moc"
