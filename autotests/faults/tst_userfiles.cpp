#include "LogFile.h"
#include "TestFiles.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

#include <sys/wait.h>
#include <unistd.h>

using Ostrel::Test::readFile;
using Ostrel::Test::writeFile;

namespace {

const QByteArray Name = "Jane Roe";
const QByteArray Address = "jane.roe@mail.example.org";

const QFileDevice::Permissions GroupOrOthers = QFileDevice::ReadGroup | QFileDevice::WriteGroup |
                                               QFileDevice::ExeGroup | QFileDevice::ReadOther |
                                               QFileDevice::WriteOther | QFileDevice::ExeOther;

// A home of its own for one run of the real host: its settings, data and log live here.
class HostHome
{
public:
    HostHome()
    {
        QDir().mkpath(runtimeFolder());
        QFile::setPermissions(runtimeFolder(),
                              QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
        // An installed version the product has not launched yet: the start writes product.ini.
        writeFile(settingsFile(QStringLiteral("installer.ini")), "[General]\nVersion=2.0.0.0\n");
    }

    QString settingsFile(const QString& name) const
    {
        return m_dir.filePath(QStringLiteral("config/Ostrel/Ostrel Host/")) + name;
    }
    QString dataFolder() const { return m_dir.filePath(QStringLiteral("data/Ostrel/Ostrel Host")); }
    QString trackingFile() const { return dataFolder() + QStringLiteral("/tracking.jsonl"); }
    QString logFile() const { return dataFolder() + QStringLiteral("/logs/ostrel-host.log"); }
    QString runtimeFolder() const { return m_dir.filePath(QStringLiteral("run")); }

    void start(QProcess& host, const QStringList& arguments, const QMap<QString, QString>& extra = {}) const
    {
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        for (auto it = extra.cbegin(); it != extra.cend(); ++it)
            env.insert(it.key(), it.value());
        env.remove(QStringLiteral("OSTREL_QT_WARNINGS_FAIL"));
        env.insert(QStringLiteral("HOME"), m_dir.path());
        env.insert(QStringLiteral("XDG_CONFIG_HOME"), m_dir.filePath(QStringLiteral("config")));
        env.insert(QStringLiteral("XDG_DATA_HOME"), m_dir.filePath(QStringLiteral("data")));
        env.insert(QStringLiteral("XDG_CACHE_HOME"), m_dir.filePath(QStringLiteral("cache")));
        env.insert(QStringLiteral("XDG_RUNTIME_DIR"), runtimeFolder());
        env.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
        // A browser that opens nothing, and every log line on disk as soon as it is written.
        env.insert(QStringLiteral("BROWSER"), QStringLiteral("/bin/true"));
        env.insert(QStringLiteral("GLOG_logbuflevel"), QStringLiteral("-1"));
        host.setProcessEnvironment(env);
        host.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        host.start(QStringLiteral(OSTREL_HOST), arguments);
    }

private:
    QTemporaryDir m_dir;
};

} // namespace

class TestUserFiles : public QObject
{
    Q_OBJECT

private slots:
    void damagedSettingsFileSurvivesARun()
    {
        HostHome home;
        // A line QSettings can not parse; its first write at the start used to drop it.
        const QByteArray product = "[General]\nPartnerName=ostrel\nthis line has no equals sign\n";
        QVERIFY(writeFile(home.settingsFile(QStringLiteral("product.ini")), product));

        QProcess host;
        home.start(host, {QStringLiteral("--no-start-nag"), QStringLiteral("--quit-after=0")});
        QVERIFY2(host.waitForFinished(60000), "the host did not quit");
        QCOMPARE(host.exitStatus(), QProcess::NormalExit);

        QCOMPARE(readFile(home.settingsFile(QStringLiteral("product.ini"))), product);
        const QByteArray log = readFile(home.logFile());
        QVERIFY2(log.contains("product.ini has a line that is not a setting (line 3)"), log.constData());

        // What the run created is the user's alone.
        for (const QString& path : QStringList{home.trackingFile(), home.logFile()}) {
            QVERIFY2(QFileInfo::exists(path), qPrintable(path));
            QCOMPARE(QFileInfo(path).permissions() & GroupOrOthers, QFileDevice::Permissions());
        }
        for (const QString& folder : QStringList{home.dataFolder(), QFileInfo(home.dataFolder()).path(),
                                                 home.dataFolder() + QStringLiteral("/logs")})
            QCOMPARE(QFileInfo(folder).permissions() & GroupOrOthers, QFileDevice::Permissions());
    }

    void trackingFileIsRepairedAndRotatedByARun()
    {
        HostHome home;
        // A previous run cut short in the middle of a line, past the size cap of this run.
        const QByteArray previous = QByteArray("{\"event\":\"OLD\"}\n").repeated(100) + "{\"event\":\"CU";
        QVERIFY(writeFile(home.trackingFile(), previous));

        QProcess host;
        home.start(host, {QStringLiteral("--no-start-nag"), QStringLiteral("--quit-after=0")},
                   {{QStringLiteral("OSTREL_FILE_SIZE_CAP"), QString::number(previous.size())}});
        QVERIFY2(host.waitForFinished(60000), "the host did not quit");

        // The cut line was ended before the file moved aside; the run's events start a new file.
        QCOMPARE(readFile(home.trackingFile() + QStringLiteral(".1")), previous + '\n');
        const QList<QByteArray> lines = readFile(home.trackingFile()).split('\n');
        QVERIFY(lines.size() > 1 && lines.last().isEmpty());
        for (const QByteArray& line : lines.mid(0, lines.size() - 1))
            QVERIFY2(QJsonDocument::fromJson(line).isObject(), line.constData());
    }

    void personalDataStaysOutOfTrackingAndLog()
    {
        HostHome home;
        QVERIFY(writeFile(home.settingsFile(QStringLiteral("mail.ini")),
                          "[General]\nUserName=" + Name + "\nUserEmail=" + Address + "\nisConfirmed=true\n"));

        // The first launch opens the thank-you page, whose URL carries the name and the address.
        QProcess host;
        home.start(host, {QStringLiteral("--no-start-nag"), QStringLiteral("--launch-type=1")});
        const bool opened =
            QTest::qWaitFor([&]() { return readFile(home.trackingFile()).contains("URL_OPEN"); }, 60000);
        host.kill();
        host.waitForFinished(10000);
        QVERIFY2(opened, "the host opened no URL");

        const QByteArray tracking = readFile(home.trackingFile());
        QVERIFY2(tracking.contains("email=***"), tracking.constData());
        const QByteArray log = readFile(home.logFile());
        QVERIFY(!log.isEmpty());
        // The settings file the start created holds the launch state beside the user's choices.
        const QString product = home.settingsFile(QStringLiteral("product.ini"));
        QVERIFY(QFileInfo::exists(product));
        QCOMPARE(QFileInfo(product).permissions() & GroupOrOthers, QFileDevice::Permissions());
        for (const QByteArray& personal :
             {Name, QByteArray("Jane%20Roe"), QByteArray("Jane+Roe"), Address, QByteArray("jane.roe%40")}) {
            QVERIFY2(!tracking.contains(personal), personal.constData());
            QVERIFY2(!log.contains(personal), personal.constData());
        }
    }

    // The host's log is its own from the moment it is chosen, not from glog's first line: of
    // instances that start together, the others see it taken and log to files of their own.
    void logFileIsClaimedWhenChosen()
    {
        QTemporaryDir dir;
        const QString path = dir.filePath(QStringLiteral("ostrel-host.log"));
        QVERIFY(claimLogFile(path));
        const pid_t child = ::fork();
        if (child == 0)
            ::_exit(claimLogFile(path) ? 1 : 0);
        int status = 0;
        QCOMPARE(::waitpid(child, &status, 0), child);
        QVERIFY(WIFEXITED(status));
        QCOMPARE(WEXITSTATUS(status), 0);
    }
};

QTEST_GUILESS_MAIN(TestUserFiles)
#include "tst_userfiles.moc"
