#include "Core/CustomizationManager.h"
#include "Core/HardwareInfo.h"
#include "Core/InstallerSettingsManager.h"
#include "Core/LaunchTypeProcessor.h"
#include "Core/ProductSettingsManager.h"
#include "Core/SettingsLocations.h"
#include "Core/SettingsStore.h"
#include "LogCapture.h"
#include "TestEnvironment.h"
#include "TestFiles.h"

#include <QFile>
#include <QTemporaryDir>

using Ostrel::App::CustomizationManager;
using Ostrel::App::ILaunchTypeProcessor;
using Ostrel::App::SettingsStore;
using Ostrel::Test::LogCapture;
using Ostrel::Test::readFile;
using Ostrel::Test::writeFile;

namespace {

std::size_t countAtLeast(const LogCapture& log, google::LogSeverity severity)
{
    std::size_t count = 0;
    for (const LogCapture::Line& line : log.lines())
        count += line.severity >= severity ? 1 : 0;
    return count;
}

} // namespace

class TestCore : public QObject
{
    Q_OBJECT

private slots:
    void settingsSurviveANewStore()
    {
        QTemporaryDir dir;
        // The folder does not exist yet; the first write makes it.
        const QString path = dir.filePath(QStringLiteral("scope/product.ini"));
        {
            SettingsStore store(path);
            store.SetString("name", "Jürgen, \"quoted\"; semi");
            store.SetBool("confirm/Question_1", true);
            store.SetUInt("count", 4000000000u);
            store.SetInt("offset", -7);
            // The changes of one turn are saved together at the next: none is on disk yet, and
            // then all of them are, with no sync or destructor in between.
            QVERIFY(!readFile(path).contains("offset"));
            QTRY_VERIFY(readFile(path).contains("offset"));
            SettingsStore other(path);
            QCOMPARE(other.GetString("name", ""), std::string("Jürgen, \"quoted\"; semi"));
            QCOMPARE(other.GetInt("offset", 0), -7);
            // What is left unsaved when the store goes is saved then.
            store.SetInt("offset", -8);
        }
        SettingsStore store(path);
        QVERIFY(!store.isReadOnly());
        QCOMPARE(store.GetBool("confirm/Question_1", false), true);
        QCOMPARE(store.GetUInt("count", 0), 4000000000u);
        QCOMPARE(store.GetInt("offset", 0), -8);
        QVERIFY(store.Has("confirm/Question_1"));
        QVERIFY(!store.Has("absent"));
        QCOMPARE(store.GetString("absent", "fallback"), std::string("fallback"));
        store.Remove("offset");
        QTRY_COMPARE(SettingsStore(path).GetInt("offset", 99), 99);
    }

    void unconvertibleValuesGiveTheDefault_data()
    {
        QTest::addColumn<QByteArray>("value");
        QTest::newRow("letters") << QByteArray("abc");
        QTest::newRow("negative") << QByteArray("-5");
        QTest::newRow("too large") << QByteArray("99999999999");
    }

    void unconvertibleValuesGiveTheDefault()
    {
        QFETCH(QByteArray, value);
        QTemporaryDir dir;
        const QString path = dir.filePath(QStringLiteral("s.ini"));
        QVERIFY(writeFile(path, "[General]\nv=" + value + "\n"));
        SettingsStore store(path);
        LogCapture log;
        QCOMPARE(store.GetUInt("v", 42u), 42u);
        QCOMPARE(store.GetBool("v", true), true);
        QCOMPARE(log.matching("v=").size(), std::size_t(2));
        QCOMPARE(countAtLeast(log, google::GLOG_WARNING), std::size_t(2));
    }

    void groupsListAndRemove()
    {
        QTemporaryDir dir;
        SettingsStore store(dir.filePath(QStringLiteral("s.ini")));
        store.SetString("top", "1");
        store.SetString("confirm/Question_1", "yes");
        store.SetString("confirm/Question_2", "no");
        store.SetString("confirm/deep/x", "1");
        store.SetString("other/y", "1");
        // A key named like a group: removing the key must not take the group with it.
        store.SetString("confirm", "self");

        QCOMPARE(store.ChildKeys(""), (std::vector<std::string>{"confirm", "top"}));
        QCOMPARE(store.ChildGroups(""), (std::vector<std::string>{"confirm", "other"}));
        QCOMPARE(store.ChildKeys("confirm"), (std::vector<std::string>{"Question_1", "Question_2"}));
        QCOMPARE(store.ChildGroups("confirm"), std::vector<std::string>{"deep"});

        store.Remove("confirm");
        QVERIFY(!store.Has("confirm"));
        QCOMPARE(store.GetString("confirm/deep/x", ""), std::string("1"));

        store.RemoveGroup("confirm");
        QCoreApplication::processEvents(); // the next turn saves
        SettingsStore reopened(dir.filePath(QStringLiteral("s.ini")));
        QCOMPARE(reopened.ChildGroups(""), std::vector<std::string>{"other"});
        QVERIFY(!reopened.Has("confirm/Question_1"));
        QCOMPARE(reopened.GetString("top", ""), std::string("1"));

        // An empty group would mean everything; it is refused.
        reopened.RemoveGroup("");
        QCOMPARE(reopened.GetString("top", ""), std::string("1"));
    }

    void brokenFileIsNeverOverwritten()
    {
        QTemporaryDir dir;
        const QString path = dir.filePath(QStringLiteral("user.ini"));
        const QByteArray bytes = "[General]\nemail=someone@example.com\n[broken\nkey=value\n";
        QVERIFY(writeFile(path, bytes));
        LogCapture log;
        {
            SettingsStore store(path);
            QVERIFY(store.isReadOnly());
            store.SetString("email", "other@example.com");
            store.SetBool("flag", true);
            store.RemoveGroup("General");
        }
        QCOMPARE(readFile(path), bytes);
        int errors = 0;
        for (const LogCapture::Line& line : log.lines()) {
            if (line.severity == google::GLOG_ERROR) {
                ++errors;
                QVERIFY(line.text.find(path.toStdString()) != std::string::npos);
            }
        }
        QCOMPARE(errors, 1);
    }

    // A line QSettings does not understand would be dropped by its first write: such a file is
    // read strictly before that write and kept as it is.
    void badLineKeepsTheFileUntouched_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<int>("badLine"); // 0: the file is fine and takes the write

        QTest::newRow("line without equals sign") << QByteArray("[General]\nname=x\njust words\n") << 3;
        QTest::newRow("section without closing bracket") << QByteArray("a=1\n[Nags\nb=2\n") << 2;
        QTest::newRow("key missing") << QByteArray("=value\n") << 1;
        QTest::newRow("bad last line without newline") << QByteArray("a=1\nb") << 2;
        QTest::newRow("comments, blanks, sections") << QByteArray("; one\n# two\n\n  [S]\n k = v \n") << 0;
        QTest::newRow("value continued on the next line") << QByteArray("a=first\\\n  second\nb=2\n") << 0;
        QTest::newRow("byte order mark") << QByteArray("\xEF\xBB\xBF[General]\na=1\r\n") << 0;
        // QSettings reads these as nothing and would write the key back empty.
        QTest::newRow("value of a type this build lacks")
            << QByteArray("a=1\n[S]\nb=@Variant(\\0\\0\\0\\x7f\\0\\0\\0\\vNoSuchType\\0)\n") << 3;
        QTest::newRow("value cut short") << QByteArray("a=@Variant(\\0\\0\\0\\n\\0\\0\n") << 1;
        QTest::newRow("values this build reads")
            << QByteArray("p=@Point(1 2)\nr=@Variant(\\0\\0\\0\\x2\\0\\0\\0\\x5)\n") << 0;
    }

    void badLineKeepsTheFileUntouched()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(int, badLine);
        QTemporaryDir dir;
        const QString path = dir.filePath(QStringLiteral("product.ini"));
        QVERIFY(writeFile(path, bytes));
        LogCapture log;
        {
            SettingsStore store(path);
            store.SetString("written", "yes");
            store.SetString("again", "yes");
            QCOMPARE(store.isReadOnly(), badLine != 0);
        }
        if (badLine == 0) {
            QCOMPARE(SettingsStore(path).GetString("written", ""), std::string("yes"));
            QCOMPARE(countAtLeast(log, google::GLOG_ERROR), std::size_t(0));
            return;
        }
        QCOMPARE(readFile(path), bytes);
        const auto errors = log.matching("(line " + std::to_string(badLine) + ")");
        QCOMPARE(errors.size(), std::size_t(1));
        QVERIFY(errors.front().find(path.toStdString()) != std::string::npos);
        QCOMPARE(countAtLeast(log, google::GLOG_ERROR), std::size_t(1));
    }

    // A lock beside the file that names no owner is not waited out at the first write.
    void ownerlessSettingsLockIsRemovedAtOnce()
    {
        QTemporaryDir dir;
        const QString path = dir.filePath(QStringLiteral("user.ini"));
        QVERIFY(writeFile(path + QStringLiteral(".lock"), "\x01 not a lock"));
        LogCapture log;
        SettingsStore(path).SetString("a", "1");
        QCOMPARE(log.matching("named no owner; removed").size(), std::size_t(1));
        QCOMPARE(SettingsStore(path).GetString("a", ""), std::string("1"));
    }

    // A store made before the product names itself lands in another folder for the whole run:
    // the user's settings would seem lost without a word.
    void settingsPlacedBeforeTheNameAreReported()
    {
        const QString organization = QCoreApplication::organizationName();
        for (const QString& name : {QString(), QStringLiteral("Ostrel")}) {
            QCoreApplication::setOrganizationName(name);
            LogCapture log;
            const QString path =
                Ostrel::App::SettingsLocations::filePath(Ostrel::App::SettingsLocations::Scope::User);
            QCOMPARE(log.matching("the organization name is not set").size(),
                     std::size_t(name.isEmpty() ? 1 : 0));
            QVERIFY(path.endsWith(QStringLiteral("/user.ini")));
        }
        QCoreApplication::setOrganizationName(organization);
    }

    // Most installations carry no customization file: named once in the log, and no warning.
    void missingCustomizationGivesDefaultsQuietly()
    {
        QTemporaryDir dir;
        const QString path = dir.filePath(QStringLiteral("CaptureDeskCustom.ini"));
        LogCapture log;
        const CustomizationManager customization(path);
        QCOMPARE(customization.GetApplicationName(), std::string("Ostrel Capture"));
        QCOMPARE(customization.GetVersion(), std::string("1.0.0.0"));
        QCOMPARE(customization.IsEmailCollectionEnabled(), false);
        QCOMPARE(customization.GetUserAgent().first, std::string("OstrelCapture/1.0"));
        QCOMPARE(countAtLeast(log, google::GLOG_WARNING), std::size_t(0));
        QCOMPARE(log.matching(path.toStdString()).size(), std::size_t(1));
    }

    void customizationLayers()
    {
        QTemporaryDir dir;
        const QString path = dir.filePath(QStringLiteral("CaptureDeskCustom.ini"));
        QVERIFY(writeFile(path, "[Customization]\n"
                                "ApplicationName=Partner Capture\n"
                                "CollectEmail=true\n"
                                "UserAgent=\"Mozilla/5.0 (X11; Linux x86_64) Partner/2.0\"\n"
                                "PageType=\n"));
        LogCapture log;
        const CustomizationManager customization(path, QStringLiteral(":/host/CaptureDeskCustom.ini"));
        // The file beside the executable wins over the embedded layer...
        QCOMPARE(customization.GetApplicationName(), std::string("Partner Capture"));
        QCOMPARE(customization.IsEmailCollectionEnabled(), true);
        QCOMPARE(customization.GetUserAgent().second,
                 std::string("Mozilla/5.0 (X11; Linux x86_64) Partner/2.0"));
        QCOMPARE(customization.GetPageType(), std::string());
        // ...the embedded layer fills what the file lacks, and the defaults the rest.
        QCOMPARE(customization.GetBrand(), std::string("embedded"));
        QCOMPARE(customization.GetVersion(), std::string("1.0.0.0"));
        QCOMPARE(customization.GetInternalId(), std::string("ostrel-capture"));
        QCOMPARE(countAtLeast(log, google::GLOG_WARNING), std::size_t(0));
    }

    void launchType_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QString>("installed");
        QTest::addColumn<QString>("lastLaunched");
        QTest::addColumn<int>("expected");
        QTest::addColumn<QString>("recorded");

        const QStringList none;
        const QString empty;
        QTest::newRow("never installed")
            << none << empty << empty << int(ILaunchTypeProcessor::Regular) << empty;
        QTest::newRow("first after install")
            << none << QStringLiteral("1.2.0.0") << empty << int(ILaunchTypeProcessor::FirstAfterInstall)
            << QStringLiteral("1.2.0.0");
        QTest::newRow("first after update")
            << none << QStringLiteral("1.3.0.0") << QStringLiteral("1.2.0.0")
            << int(ILaunchTypeProcessor::FirstAfterUpdate) << QStringLiteral("1.3.0.0");
        QTest::newRow("same version again")
            << none << QStringLiteral("1.3.0.0") << QStringLiteral("1.3.0.0")
            << int(ILaunchTypeProcessor::Regular) << QStringLiteral("1.3.0.0");
        QTest::newRow("restarter says so")
            << QStringList{QStringLiteral("--launch-type=3")} << QStringLiteral("1.3.0.0")
            << QStringLiteral("1.2.0.0") << int(ILaunchTypeProcessor::Restarted) << QStringLiteral("1.3.0.0");
        QTest::newRow("background keeps the first launch for later")
            << QStringList{QStringLiteral("--background")} << QStringLiteral("1.2.0.0") << empty
            << int(ILaunchTypeProcessor::Background) << empty;
        QTest::newRow("unknown explicit type ignored")
            << QStringList{QStringLiteral("--launch-type=9")} << QStringLiteral("1.3.0.0")
            << QStringLiteral("1.3.0.0") << int(ILaunchTypeProcessor::Regular) << QStringLiteral("1.3.0.0");
    }

    void launchType()
    {
        QFETCH(QStringList, arguments);
        QFETCH(QString, installed);
        QFETCH(QString, lastLaunched);
        QFETCH(int, expected);
        QFETCH(QString, recorded);

        QTemporaryDir dir;
        const std::shared_ptr<Ostrel::App::IProductSettingsManager> product =
            std::make_shared<Ostrel::App::ProductSettingsManager>(dir.filePath(QStringLiteral("p.ini")));
        const std::shared_ptr<Ostrel::App::IInstallerSettingsManager> installer =
            std::make_shared<Ostrel::App::InstallerSettingsManager>(dir.filePath(QStringLiteral("i.ini")));
        if (!installed.isEmpty())
            installer->SetString("Version", installed.toStdString());
        if (!lastLaunched.isEmpty())
            product->SetString("LastLaunchedVersion", lastLaunched.toStdString());

        const Ostrel::App::LaunchTypeProcessor processor(product, installer,
                                                         QStringList{QStringLiteral("ostrel")} + arguments);
        QCOMPARE(processor.GetLaunchType(), expected);
        QCOMPARE(QString::fromStdString(product->GetString("LastLaunchedVersion", "")), recorded);
    }

    void machineIdIsStable()
    {
        const std::string first = Ostrel::App::HardwareInfo().GetHardwareId();
        QCOMPARE(first.size(), std::size_t(32));
        QCOMPARE(Ostrel::App::HardwareInfo().GetHardwareId(), first);
    }
};

OSTREL_TEST_MAIN(TestCore)
#include "tst_core.moc"
