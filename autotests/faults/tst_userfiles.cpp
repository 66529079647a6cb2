#include "LogFile.h"
#include "RecordingHttpServer.h"
#include "TestFiles.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QProcess>
#include <QTcpSocket>
#include <QTemporaryDir>
#include <QUrl>
#include <QtTest>
#include <functional>

#include <sys/wait.h>
#include <unistd.h>

using Ostrel::Test::readFile;
using Ostrel::Test::writeFile;

namespace {

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
    QString path(const QString& name) const { return name.isEmpty() ? m_dir.path() : m_dir.filePath(name); }

    void start(QProcess& host, const QStringList& arguments, const QMap<QString, QString>& extra = {},
               const QString& program = QStringLiteral(OSTREL_HOST)) const
    {
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
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
        for (auto it = extra.cbegin(); it != extra.cend(); ++it)
            env.insert(it.key(), it.value());
        host.setProcessEnvironment(env);
        host.start(program, arguments);
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

    // The canary: a known name and address walk every path that can carry them, and then every
    // byte the runs wrote under the user's folders, on standard output and on standard error is
    // scanned. They may stay only in the settings file that stores them and in the user's own URL
    // dump (both user-only), and reach only the browser's arguments. The paths walked: the first
    // launch with the e-mail question and the thank-you page; a web nag whose address and link
    // carry them, with a failed and a successful "collectEmail" against a local server; the update
    // check; the URL dump; a nag request refused; a crash record.
    void personalDataReachesNothingButSettingsAndBrowser()
    {
        HostHome home;
        const QString name = QStringLiteral("Zelda Quonk");
        const QString address = QStringLiteral("zelda.quonk+news@canary.example");
        const QString encodedAddress = QString::fromLatin1(QUrl::toPercentEncoding(address));
        const QString mail = home.settingsFile(QStringLiteral("mail.ini"));
        QVERIFY(writeFile(
            mail, QStringLiteral("[General]\nUserName=%1\nUserEmail=%2\n").arg(name, address).toUtf8()));
        QVERIFY(QFile::setPermissions(mail, QFileDevice::ReadOwner | QFileDevice::WriteOwner));

        // Outside the user's folders: the host beside a customization that points its links at a
        // local server, and a browser that records what it is handed.
        QTemporaryDir outside;
        Ostrel::Test::RecordingHttpServer server;
        const QString bin = outside.filePath(QStringLiteral("bin"));
        QVERIFY(QDir().mkpath(bin));
        const QString hostCopy = bin + QStringLiteral("/ostrel-host");
        QVERIFY(QFile::copy(QStringLiteral(OSTREL_HOST), hostCopy));
        QVERIFY(QFile::link(QFileInfo(QStringLiteral(OSTREL_HOST)).absolutePath() +
                                QStringLiteral("/../resources"),
                            outside.filePath(QStringLiteral("resources"))));
        QVERIFY(writeFile(bin + QStringLiteral("/CaptureDeskCustom.ini"),
                          QStringLiteral("[Customization]\nCollectEmail=true\n[Hosts]\nmessages=%1\n[Links]\n"
                                         "COLLECT_EMAIL_URL=%2/subscribe?name=-NAME-&email=-EMAIL-\n"
                                         "CHECK_FOR_UPDATES_URL=%2/update/-EMAIL-/?user_name=-NAME-\n")
                              .arg(server.base().mid(7), server.base())
                              .toUtf8()));
        const QString browserArguments = outside.filePath(QStringLiteral("browser.txt"));
        const QString browser = outside.filePath(QStringLiteral("browser.sh"));
        QVERIFY(
            writeFile(browser, "#!/bin/sh\nprintf '%s\\n' \"$@\" >> '" + browserArguments.toUtf8() + "'\n"));
        QVERIFY(QFile::setPermissions(browser, QFileDevice::ReadOwner | QFileDevice::ExeOwner));
        QVERIFY(writeFile(home.settingsFile(QStringLiteral("product.ini")),
                          "[General]\nPreferredBrowser=" + browser.toUtf8() + "\n"));

        // The web nag collects the address twice (the server refuses the first) and opens a link
        // that names the user; everything else the server answers with 404.
        int subscriptions = 0;
        server.setHandler("/subscribe", [&subscriptions](const auto&, QTcpSocket& socket) {
            socket.write(Ostrel::Test::RecordingHttpServer::response(++subscriptions == 1 ? 500 : 200));
            socket.disconnectFromHost();
        });
        server.setReply(Ostrel::Test::RecordingHttpServer::response(404));
        server.setReplyFor(
            "/nag/main.qml",
            Ostrel::Test::RecordingHttpServer::response(
                200,
                QStringLiteral("import QtQuick 2.0\n"
                               "Item {\n"
                               "    Component.onCompleted: {\n"
                               "        callback.CustomAction('collectEmail', {name: '%1', email: '%2'})\n"
                               "        callback.CustomAction('collectEmail', {name: '%3', email: '%4'})\n"
                               "        callback.RequestUrl('https://offers.example/u/%5/?name=%6')\n"
                               "        closer.start()\n"
                               "    }\n"
                               "    Timer { id: closer; interval: 1000; onTriggered: callback.Reject() }\n"
                               "}\n")
                    .arg(name, address, name.toUpper(), address.toUpper(), encodedAddress,
                         QStringLiteral("Zelda+Quonk"))
                    .toUtf8()));

        const QMap<QString, QString> verbose{{QStringLiteral("GLOG_v"), QStringLiteral("1")}};
        QByteArray console;
        const auto run = [&](const QStringList& arguments, const std::function<bool()>& walked) {
            QProcess host;
            home.start(host, arguments, verbose, hostCopy);
            const bool done = QTest::qWaitFor(walked, 60000);
            host.terminate();
            host.waitForFinished(10000);
            console += host.readAllStandardOutput() + host.readAllStandardError();
            return done;
        };
        // The first launch: the thank-you page, the update check and the URL dump, while the usage
        // statistics question holds the e-mail question back.
        QVERIFY2(run({QStringLiteral("--launch-type=1"), QStringLiteral("--no-start-nag"),
                      QStringLiteral("--test-ssl-disable"), QStringLiteral("--test-dump-urls"),
                      QStringLiteral("--test-custom-locales=en_US")},
                     [&]() {
                         const QByteArray log = readFile(home.logFile());
                         return readFile(home.trackingFile()).count("\"URL_OPEN\"") == 1 &&
                                log.contains("Update check failed") &&
                                log.contains("Gateway holds \"EMAIL_DIALOG\"");
                     }),
                 "the first launch did not walk every path");
        // The question answered, a requested nag waits for nothing: the web nag with its collects.
        QVERIFY(writeFile(home.settingsFile(QStringLiteral("application.ini")),
                          "[General]\nis_first_show_appstore_statistic=false\n"));
        QVERIFY2(run({QStringLiteral("--no-start-nag"), QStringLiteral("--test-ssl-disable"),
                      QStringLiteral("--test-custom-locales=en_US"),
                      QStringLiteral("--open-nag=%1/nag/main.qml?email=%2&name=Zelda%20Quonk")
                          .arg(server.base(), encodedAddress)},
                     [&]() {
                         const QByteArray tracking = readFile(home.trackingFile());
                         return subscriptions == 2 && tracking.count("\"URL_OPEN\"") == 2 &&
                                tracking.contains("\"NAG_CLOSE\"") &&
                                readFile(home.logFile()).contains("CollectEmail request failed");
                     }),
                 "the web nag did not walk every path");
        // A request for a nag elsewhere that names the user; then an exception that ends a run.
        {
            QProcess refusing;
            home.start(refusing,
                       {QStringLiteral("--no-start-nag"),
                        QStringLiteral("--open-nag=https://elsewhere.example/u/%1/?name=Zelda%20Quonk")
                            .arg(address)},
                       verbose, hostCopy);
            const bool refused = QTest::qWaitFor(
                [&]() { return readFile(home.logFile()).contains("Nag request refused"); }, 60000);
            refusing.terminate();
            refusing.waitForFinished(10000);
            console += refusing.readAllStandardOutput() + refusing.readAllStandardError();
            QVERIFY(refused);
            QProcess crashing;
            home.start(crashing,
                       {QStringLiteral("--no-start-nag"), QStringLiteral("--test-crash-after=0"),
                        QStringLiteral("--test-crash-reason=exception"),
                        QStringLiteral("--test-crash-thread=main")},
                       verbose, hostCopy);
            QVERIFY(crashing.waitForFinished(60000));
            console += crashing.readAllStandardOutput() + crashing.readAllStandardError();
        }

        // The browser got the user's data, as did the settings file and the user's own dump.
        const QByteArray handed = readFile(browserArguments);
        QVERIFY2(handed.contains("thank_you_for_install") && handed.contains("offers.example/u/zelda.quonk"),
                 handed.constData());
        const QStringList kept{mail, home.dataFolder() + QStringLiteral("/host-url-dump.csv")};
        for (const QString& path : kept) {
            QVERIFY2(readFile(path).toLower().contains("zelda.quonk"), qPrintable(path));
            QCOMPARE(QFileInfo(path).permissions() & GroupOrOthers, QFileDevice::Permissions());
        }
        // Every word of the canary, in any case and any encoding (the letters survive encoding).
        const auto carries = [](const QByteArray& bytes) {
            const QByteArray lower = bytes.toLower();
            return lower.contains("quonk") || lower.contains("zelda") || lower.contains("canary.example");
        };
        QVERIFY2(!carries(console), console.constData());
        QStringList scanned;
        QDirIterator files(home.path(QString()), QDir::Files | QDir::Hidden | QDir::System,
                           QDirIterator::Subdirectories);
        while (files.hasNext()) {
            const QString path = files.next();
            if (kept.contains(path))
                continue;
            scanned << path;
            QVERIFY2(!carries(readFile(path)),
                     qPrintable(path + QLatin1Char('\n') + QString::fromUtf8(readFile(path))));
        }
        for (const QString& expected : QStringList{home.trackingFile(), home.logFile(),
                                                   home.dataFolder() + QStringLiteral("/crash.log")})
            QVERIFY2(scanned.contains(expected), qPrintable(scanned.join(QLatin1Char('\n'))));
        qInfo("Scanned %d files: %s", int(scanned.size()), qPrintable(scanned.join(QStringLiteral(", "))));
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
