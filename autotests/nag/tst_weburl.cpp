// The web nag request: the whole URL for several locales with switched-off nags and a locked id,
// the nag id locks, web nags fetched from a local server through the nag manager, and the
// built-in web configuration the shell carries.

#include "App/Application/ITopManager.h"
#include "App/Application/NagScreen/NagIdLockStorage.h"
#include "App/Application/NagScreen/WebNagUrlGenerator.h"
#include "Core/LinksManager.h"
#include "Core/ProductSettingsManager.h"
#include "Foundation/SHA1.h"
#include "Foundation/SystemInfo.h"
#include "Foundation/Utf8.h"
#include "Nag/AbstractContent.h"
#include "Nag/IShowStrategy.h"
#include "Nag/NagManager.h"
#include "Nag/WebConfigDocument.h"
#include "QtUtil/UrlProtocol.h"

#include "FakeCustomization.h"
#include "FakeHardware.h"
#include "FakeLaunchType.h"
#include "FakeLookAndFeel.h"
#include "MemorySettings.h"
#include "RecordingHttpServer.h"
#include "TestEnvironment.h"

#include <QFile>
#include <QTemporaryDir>
#include <QUrlQuery>

using namespace Ostrel;
using namespace Ostrel::App;
using namespace Ostrel::App::NagScreen;
using namespace Ostrel::Test;

namespace {

// Shows nothing: notes what is shown and what a request for the same nag made meanwhile would
// carry, and ends with a fixed code.
class PeekingStrategy : public IShowStrategy
{
public:
    explicit PeekingStrategy(int code) : m_code(code) {}
    std::function<QString()> peek;
    QUrl shown;
    QString peeked;
    int ShowNag(AbstractContent& content) override
    {
        shown = content.SourceUrl();
        peeked = peek();
        return m_code;
    }

private:
    int m_code;
};

// Read off the process's mappings.
bool qtQuickLoaded()
{
    QFile maps(QStringLiteral("/proc/self/maps"));
    return maps.open(QIODevice::ReadOnly) && maps.readAll().contains("libQt5Quick.so");
}

} // namespace

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
        return base +
               QStringLiteral(
                   "?app=home-capture-desk&module=capture&app_ver=3-2-1-0&partner=acme&app_mode=free&lang=") +
               lang + QStringLiteral("&app_action=app_start&huid=") +
               QString::fromStdString(Util::SHA1::digest("machine-42")) + QStringLiteral("&protocol=1&os=") +
               Util::Utf8ToQString(Core::SystemName()) + QStringLiteral("&os_bits=") +
               QString::number(Core::OSBits()) + QStringLiteral("&platform=") +
               QString::number(Core::AppBits()) + QStringLiteral("&cpu_arch=") +
               Util::Utf8ToQString(Core::ProcessorArchitecture()) +
               QStringLiteral(
                   "&excludeId=old_1,old_3,&include_id=promised_9&bundle_name=UNDEFINED&webuid=w-77"
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
        QTest::newRow("de_DE") << "de_DE"
                               << "de";
        QTest::newRow("ja_JP") << "ja_JP"
                               << "jp";
        QTest::newRow("zh_CN") << "zh_CN"
                               << "zh_CN";
        QTest::newRow("pt_BR") << "pt_BR"
                               << "pt";
    }

    void wholeUrl()
    {
        QFETCH(QString, locale);
        QFETCH(QString, lang);
        const QUrl url = generator()->Generate(QStringLiteral("free"), QStringLiteral("app_start"), locale);
        const QUrl want(expected(QStringLiteral("https://msg.ostrel.com/get_nag.php"), lang),
                        QUrl::TolerantMode);
        QCOMPARE(url.toString(QUrl::FullyEncoded), want.toString(QUrl::FullyEncoded));
    }

    void theContextTakesTheCurrentLocale()
    {
        const QUrl url =
            generator()->Generate(NagContext{QStringLiteral("app_start"), QStringLiteral("free")});
        QCOMPARE(url,
                 QUrl(expected(QStringLiteral("https://msg.ostrel.com/get_nag.php"), QStringLiteral("de")),
                      QUrl::TolerantMode));
    }

    // The server receives the version as the product gives it, trailing zeros and all.
    void wholeVersion_data()
    {
        QTest::addColumn<QString>("version");
        QTest::addColumn<QString>("appVer");
        QTest::newRow("trailing zero") << "24.1.0"
                                       << "24-1-0";
        QTest::newRow("four parts") << "3.2.1.7"
                                    << "3-2-1-7";
    }

    void wholeVersion()
    {
        QFETCH(QString, version);
        QFETCH(QString, appVer);
        customization->version = Util::QStringToUtf8(version);
        const QUrl url = generator()->Generate(QStringLiteral("free"), QStringLiteral("app_start"),
                                               QStringLiteral("en_US"));
        customization->version = "3.2.1.0";
        QCOMPARE(QUrlQuery(url).queryItemValue(QStringLiteral("app_ver")), appVer);
    }

    void nothingSwitchedOffNorLocked()
    {
        const QUrl url = generator()->Generate(QStringLiteral("trial"), QStringLiteral("app_close"),
                                               QStringLiteral("en_US"));
        QVERIFY2(url.toString().contains(QStringLiteral("&excludeId=&include_id=&")),
                 qPrintable(url.toString()));
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

    // Qt Quick comes with the first nag (the nag library loads its Qt Quick half then), not with
    // the shell: a start that shows no nag never loads it.
    void theShellLoadsNoQtQuick() { QVERIFY(!qtQuickLoaded()); }

    // Through the manager: a row addressed to the nag server is asked with the generated request,
    // a nag opened on request loads its own address. The id the nag reports is locked while it is
    // up, so a request made meanwhile asks for it again, and released once it has been seen.
    void webNagsThroughTheManager_data()
    {
        QTest::addColumn<QString>("action");
        QTest::addColumn<QString>("source");
        QTest::addColumn<bool>("generated");
        QTest::addColumn<int>("code");
        QTest::addColumn<QString>("lockedAfter");
        QTest::newRow("nag server row, seen") << "major_update"
                                              << "/nag/main.qml" << true << 1 << "";
        QTest::newRow("nag server row, cut short") << "major_update"
                                                   << "/nag/main.qml" << true << -1 << "web_1";
        QTest::newRow("opened on request") << "open_nag"
                                           << "/promo/main.qml?x=1" << false << 0 << "";
    }

    void webNagsThroughTheManager()
    {
        QFETCH(QString, action);
        QFETCH(QString, source);
        QFETCH(bool, generated);
        QFETCH(int, code);
        QFETCH(QString, lockedAfter);
        // Only the nags are there: the engine's question for a folder's qmldir gets a 404.
        RecordingHttpServer server;
        const QByteArray nag(
            "import QtQuick 2.15\nItem { width: 40; height: 30; property string nag_id: \"web_1\" }\n");
        server.setReply(RecordingHttpServer::response(404));
        server.setReplyFor("/nag/main.qml", RecordingHttpServer::response(200, nag));
        server.setReplyFor("/promo/main.qml", RecordingHttpServer::response(200, nag));
        const QString nagServer = server.url(QStringLiteral("/nag/main.qml")).toString();
        customization->custom["Links/CUSTOM_WEB_NAG_URL"] =
            Util::QStringToUtf8(QString(nagServer).replace(QLatin1String("http:"), QLatin1String("https:")));
        // The local server speaks plain HTTP: the switch a test run uses behind a proxy.
        Util::SetDefaultSslUsage(false);

        const auto requests = generator();
        const auto nextRequest = [&]() {
            return requests->Generate(QStringLiteral("free"), action, QStringLiteral("de_DE")).toString();
        };
        const auto strategy = std::make_shared<PeekingStrategy>(code);
        strategy->peek = nextRequest;
        const auto manager = std::make_shared<NagManager>(product);
        manager->SetWebNagUrlGenerator(requests);
        manager->SetNagIdLockStorage(locks);
        manager->SetAccessRules({{QStringLiteral("127.0.0.1")}, true});
        manager->SetWebTimeout(10000);
        manager->SetShowStrategy(strategy);
        manager->AddNag(QStringLiteral("free"), action, server.url(source), {}, {}, 0);
        QCOMPARE(manager->ShowNag(action), code);
        QVERIFY(qtQuickLoaded());
        customization->custom.clear();

        const QUrl asked = server.url(source);
        const auto fetches = server.requestsTo(asked.path().toLatin1());
        QCOMPARE(fetches.size(), 1);
        const QUrl fetched = QUrl::fromEncoded(server.base().toLatin1() + fetches.front().target);
        QCOMPARE(strategy->shown, fetched);
        if (generated) {
            const QUrlQuery query(fetched);
            QCOMPARE(query.queryItemValue(QStringLiteral("app")), QStringLiteral("home-capture-desk"));
            QCOMPARE(query.queryItemValue(QStringLiteral("app_action")), action);
        } else {
            QCOMPARE(fetched, asked);
        }
        QVERIFY2(strategy->peeked.contains(QStringLiteral("&include_id=web_1&")),
                 qPrintable(strategy->peeked));
        QCOMPARE(Util::Utf8ToQString(locks->getLockedNagId(Util::QStringToUtf8(action), "free")),
                 lockedAfter);
        QVERIFY(nextRequest().contains(QStringLiteral("&include_id=") + lockedAfter + QLatin1Char('&')));
        locks->cleanupNagId(Util::QStringToUtf8(action), "free", std::string());
    }

    void languageCodes_data()
    {
        QTest::addColumn<QString>("locale");
        QTest::addColumn<QString>("code");
        QTest::newRow("zh_TW") << "zh_TW"
                               << "zh_TW";
        QTest::newRow("ru_RU") << "ru_RU"
                               << "ru";
        QTest::newRow("language only") << "fr"
                                       << "fr";
        QTest::newRow("one letter") << "x" << QStringLiteral("x") + QChar(0);
    }

    void languageCodes()
    {
        QFETCH(QString, locale);
        QFETCH(QString, code);
        QCOMPARE(WebNagUrlGenerator::LanguageCode(locale), code);
    }

    // The built-in web configuration, which the shell carries.
    void webConfiguration_data()
    {
        QTest::addColumn<QString>("key");
        QTest::addColumn<QString>("locale");
        QTest::addColumn<QVariant>("expected");
        QTest::newRow("default") << "ACTION_OSTREL_FACEBOOK"
                                 << "en_US" << QVariant(QStringLiteral("SHOW=ActionOstrelFacebook"));
        QTest::newRow("ru_RU override") << "ACTION_OSTREL_FACEBOOK"
                                        << "ru_RU" << QVariant(QStringLiteral("HIDE=ActionOstrelFacebook"));
        QTest::newRow("ru_RU shows VK") << "ACTION_OSTREL_VK"
                                        << "ru_RU" << QVariant(QStringLiteral("SHOW=ActionOstrelVK"));
        QTest::newRow("locale is exact")
            << "ACTION_OSTREL_OK"
            << "ru" << QVariant(QStringLiteral("HIDE=ActionOstrelOdnoklassniki"));
        QTest::newRow("absent key") << "ACTION_NOTHING"
                                    << "ru_RU" << QVariant();
    }
    void webConfiguration()
    {
        QFETCH(QString, key);
        QFETCH(QString, locale);
        const auto document = WebConfig::WebConfigDocument::defaults();
        QTEST(document.value(QStringLiteral("CustomizationSettings"), key, locale), "expected");
        QCOMPARE(document.value(QStringLiteral("UpdateCheckerResolver"), QStringLiteral("IsUpdateAllowed"),
                                locale),
                 QVariant(true));
        QCOMPARE(
            document.value(QStringLiteral("UpdateCheckerResolver"), QStringLiteral("AppcastUrl"), locale),
            QVariant(QString()));
    }

    void protocolSwitch()
    {
        QCOMPARE(Util::ReplaceUrlProtocol(QStringLiteral("http://a.example/-X-")),
                 QStringLiteral("https://a.example/-X-"));
        Util::SetDefaultSslUsage(false);
        QCOMPARE(Util::ReplaceUrlProtocol(QStringLiteral("HTTPS://a.example/")),
                 QStringLiteral("http://a.example/"));
        QCOMPARE(Util::ReplaceUrlProtocol(QStringLiteral("ftp://a.example/")),
                 QStringLiteral("ftp://a.example/"));
        QCOMPARE(Util::ReplaceUrlProtocol(QString()), QString());
    }
};

OSTREL_TEST_MAIN(WebUrlTest)
#include "tst_weburl.moc"
