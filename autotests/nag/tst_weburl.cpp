// The web nag request: the whole URL for several locales with switched-off nags and a locked id,
// the nag id locks, and a web nag fetched from a local server at the generated address.

#include "App/Application/ITopManager.h"
#include "App/Application/NagScreen/NagIdLockStorage.h"
#include "App/Application/NagScreen/WebNagUrlGenerator.h"
#include "Core/LinksManager.h"
#include "Core/ProductSettingsManager.h"
#include "Foundation/SHA1.h"
#include "Foundation/SystemInfo.h"
#include "Nag/WebQuickContent.h"
#include "QtUtil/UrlProtocol.h"
#include "QtUtil/Utf8.h"

#include "FakeCustomization.h"
#include "FakeHardware.h"
#include "FakeLaunchType.h"
#include "FakeLookAndFeel.h"
#include "MemorySettings.h"
#include "RecordingHttpServer.h"
#include "TestEnvironment.h"

#include <QTemporaryDir>

using namespace Ostrel;
using namespace Ostrel::App;
using namespace Ostrel::App::NagScreen;
using namespace Ostrel::Test;

class WebUrlTest : public QObject
{
    Q_OBJECT

    QTemporaryDir dir;
    ITopManager top;
    std::shared_ptr<FakeCustomization> customization = std::make_shared<FakeCustomization>();
    std::shared_ptr<FakeHardware> hardware = std::make_shared<FakeHardware>();
    std::shared_ptr<FakeLookAndFeel> lookAndFeel = std::make_shared<FakeLookAndFeel>();
    std::shared_ptr<ProductSettingsManager> product;
    std::shared_ptr<MemoryUserSettings> user = std::make_shared<MemoryUserSettings>();
    std::shared_ptr<NagIdLockStorage> locks;

    // The text the server is to receive, with the machine's own system values.
    QString expected(const QString& base, const QString& lang) const
    {
        return base + QStringLiteral("?app=home-capture-desk&module=capture&app_ver=3-2-1&partner=acme&app_mode=free&lang=")
               + lang + QStringLiteral("&app_action=app_start&huid=") + QString::fromStdString(Util::SHA1::digest("machine-42"))
               + QStringLiteral("&protocol=1&os=") + Util::Utf8ToQString(Core::SystemName()) + QStringLiteral("&os_bits=")
               + QString::number(Core::OSBits()) + QStringLiteral("&platform=") + QString::number(Core::AppBits())
               + QStringLiteral("&cpu_arch=") + Util::Utf8ToQString(Core::ProcessorArchitecture())
               + QStringLiteral("&excludeId=old_1,old_3,&include_id=promised_9&bundle_name=UNDEFINED&webuid=w-77"
                                "&market=global&brand=probe&gift_id=42");
    }

    std::shared_ptr<WebNagUrlGenerator> generator()
    {
        auto result = std::make_shared<WebNagUrlGenerator>(top, locks);
        result->SetGiftIdSource([]() { return 42; });
        return result;
    }

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(dir.isValid());
        hardware->id = "machine-42";
        lookAndFeel->locale = "de_DE";
        product = std::make_shared<ProductSettingsManager>(dir.filePath(QStringLiteral("product.ini")));
        product->SetString("PartnerName", "acme");
        product->SetBool("dontShowNag_app_start_free/old_1", true);
        product->SetBool("dontShowNag_app_start_free/old_2", false);
        product->SetBool("dontShowNag_app_start_free/old_3", true);
        product->SetBool("dontShowNag_app_close_free/other", true);
        user->SetString("WEBUID", "w-77");
        locks = std::make_shared<NagIdLockStorage>(product);
        locks->lockNagId("app_start", "free", "promised_9");

        top.set<ICustomizationManager>(customization);
        top.set<IHardwareInfo>(hardware);
        top.set<ILookAndFeelManager>(lookAndFeel);
        top.set<IProductSettingsManager>(product);
        top.set<IUserSettingsManager>(user);
        top.set<ILinksManager>(std::make_shared<LinksManager>(
            customization, hardware, lookAndFeel, std::make_shared<MemoryMailSettings>(), product, user,
            std::make_shared<FakeLaunchType>(), nullptr, nullptr));
    }

    void cleanup() { Util::SetDefaultSslUsage(true); }

    void wholeUrl_data()
    {
        QTest::addColumn<QString>("locale");
        QTest::addColumn<QString>("lang");
        QTest::newRow("de_DE") << "de_DE" << "de";
        QTest::newRow("ja_JP") << "ja_JP" << "jp";
        QTest::newRow("zh_CN") << "zh_CN" << "zh_CN";
        QTest::newRow("pt_BR") << "pt_BR" << "pt";
    }

    void wholeUrl()
    {
        QFETCH(QString, locale);
        QFETCH(QString, lang);
        const QUrl url = generator()->Generate(QStringLiteral("free"), QStringLiteral("app_start"), locale);
        const QUrl want(expected(QStringLiteral("https://msg.ostrel.com/get_nag.php"), lang), QUrl::TolerantMode);
        QCOMPARE(url.toString(QUrl::FullyEncoded), want.toString(QUrl::FullyEncoded));
    }

    void theContextTakesTheCurrentLocale()
    {
        const QUrl url = generator()->Generate(NagContext{QStringLiteral("app_start"), QStringLiteral("free")});
        QCOMPARE(url, QUrl(expected(QStringLiteral("https://msg.ostrel.com/get_nag.php"), QStringLiteral("de")),
                           QUrl::TolerantMode));
    }

    void nothingSwitchedOffNorLocked()
    {
        const QUrl url = generator()->Generate(QStringLiteral("trial"), QStringLiteral("app_close"), QStringLiteral("en_US"));
        QVERIFY2(url.toString().contains(QStringLiteral("&excludeId=&include_id=&")), qPrintable(url.toString()));
    }

    void lockStorage()
    {
        NagIdLockStorage storage(product);
        QCOMPARE(storage.lockNagId("a", "m", "x"), std::string());
        QCOMPARE(product->GetString("NagIdLocks/a_m", "?"), std::string("x"));
        QCOMPARE(storage.getLockedNagId("a", "m"), std::string("x"));
        QCOMPARE(storage.getLockedNagId("a", "other"), std::string());
        QCOMPARE(storage.cleanupNagId("a", "m", "x"), std::string());
        QCOMPARE(storage.getLockedNagId("a", "m"), std::string("x"));
        QCOMPARE(storage.lockNagId("a", "m", "y"), std::string("x"));
        QCOMPARE(storage.cleanupNagId("a", "m", "z"), std::string("y"));
        QVERIFY(!product->Has("NagIdLocks/a_m"));
        QCOMPARE(storage.cleanupNagId("a", "m", "z"), std::string());
    }

    void webNagFetchedFromTheGeneratedAddress()
    {
        // Only the nag is there: the engine's question for the folder's qmldir gets a 404.
        RecordingHttpServer server;
        server.setReply(RecordingHttpServer::response(404));
        server.setReplyFor("/nag/main.qml", RecordingHttpServer::response(
                                                200, "import QtQuick 2.15\nItem { width: 40; height: 30; "
                                                     "property string nag_id: \"web_1\" }\n"));
        const QString base = server.url(QStringLiteral("/nag/main.qml"))
                                 .toString()
                                 .replace(QLatin1String("http:"), QLatin1String("https:"));
        customization->custom["Links/CUSTOM_WEB_NAG_URL"] = Util::QStringToUtf8(base);
        // The local server speaks plain HTTP: the switch a test run uses behind a proxy.
        Util::SetDefaultSslUsage(false);

        ContentEnvironment environment;
        environment.urlGenerator = generator();
        environment.webTimeoutMs = 10000;
        environment.access.hosts = QStringList{QStringLiteral("127.0.0.1")};
        environment.access.allowHttp = true;
        WebQuickContent content(NagContext{QStringLiteral("app_start"), QStringLiteral("free")},
                                QUrl(QStringLiteral("http://127.0.0.1:1/unused.qml")), environment);
        content.Load();
        QTRY_COMPARE_WITH_TIMEOUT(content.State(), ContentState::Ready, 10000);
        customization->custom.clear();

        const auto requests = server.requestsTo("/nag/main.qml");
        QCOMPARE(requests.size(), 1);
        QCOMPARE(QUrl::fromEncoded(server.base().toLatin1() + requests.front().target),
                 QUrl(expected(server.url(QStringLiteral("/nag/main.qml")).toString(), QStringLiteral("de")),
                      QUrl::TolerantMode));
        QCOMPARE(content.Id(), QStringLiteral("web_1"));
    }

    void languageCodes_data()
    {
        QTest::addColumn<QString>("locale");
        QTest::addColumn<QString>("code");
        QTest::newRow("zh_TW") << "zh_TW" << "zh_TW";
        QTest::newRow("ru_RU") << "ru_RU" << "ru";
        QTest::newRow("language only") << "fr" << "fr";
        QTest::newRow("one letter") << "x" << QStringLiteral("x") + QChar(0);
    }

    void languageCodes()
    {
        QFETCH(QString, locale);
        QFETCH(QString, code);
        QCOMPARE(WebNagUrlGenerator::LanguageCode(locale), code);
    }

    void protocolSwitch()
    {
        QCOMPARE(Util::ReplaceUrlProtocol(QStringLiteral("http://a.example/-X-")), QStringLiteral("https://a.example/-X-"));
        Util::SetDefaultSslUsage(false);
        QCOMPARE(Util::ReplaceUrlProtocol(QStringLiteral("HTTPS://a.example/")), QStringLiteral("http://a.example/"));
        QCOMPARE(Util::ReplaceUrlProtocol(QStringLiteral("ftp://a.example/")), QStringLiteral("ftp://a.example/"));
        QCOMPARE(Util::ReplaceUrlProtocol(QString()), QString());
    }
};

OSTREL_TEST_MAIN(WebUrlTest)
#include "tst_weburl.moc"
