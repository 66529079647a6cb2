// The core library's links manager: what it puts behind the macros and placeholders, what the
// customization may change, and the application's fallback when the host set no manager.

#include "App/Application/Application.h"
#include "App/Application/LifetimeManager.h"
#include "Core/LinksManager.h"
#include "Foundation/SHA1.h"

#include "FakeCustomization.h"
#include "FakeHardware.h"
#include "FakeLaunchType.h"
#include "FakeLookAndFeel.h"
#include "LogCapture.h"
#include "MemorySettings.h"
#include "TestEnvironment.h"

#include <QUrlQuery>

using namespace Ostrel;
using namespace Ostrel::App;
using namespace Ostrel::Test;

using Parameters = QMap<QString, QString>;

class TestLinks : public QObject
{
    Q_OBJECT

    std::shared_ptr<FakeCustomization> customization;
    std::shared_ptr<FakeHardware> hardware;
    std::shared_ptr<FakeLookAndFeel> lookAndFeel;
    std::shared_ptr<MemoryMailSettings> mail;
    std::shared_ptr<MemoryProductSettings> product;
    std::shared_ptr<MemoryUserSettings> user;
    std::shared_ptr<MemoryInstallerSettings> installer;
    std::shared_ptr<LinksManager> links;

private slots:
    void init()
    {
        customization = std::make_shared<FakeCustomization>();
        hardware = std::make_shared<FakeHardware>();
        lookAndFeel = std::make_shared<FakeLookAndFeel>();
        mail = std::make_shared<MemoryMailSettings>();
        product = std::make_shared<MemoryProductSettings>();
        user = std::make_shared<MemoryUserSettings>();
        installer = std::make_shared<MemoryInstallerSettings>();
        links = std::make_shared<LinksManager>(customization, hardware, lookAndFeel, mail, product, user,
                                               std::make_shared<FakeLaunchType>(), nullptr, installer);
    }

    void tailCarriesTheCommonQuery()
    {
        product->SetString("PartnerName", "partner & co");
        user->SetString("WEBUID", "w-1");
        const QUrl url(links->GetUrl(FAQ_URL_menu));
        QCOMPARE(url.host(), QStringLiteral("link.ostrel.com"));
        QCOMPARE(url.path(), QStringLiteral("/faq/"));
        const QUrlQuery query(url);
        const QList<QPair<QString, QString>> expected = {
            {QStringLiteral("asrc"), QStringLiteral("menu")},
            {QStringLiteral("app"), QStringLiteral("links-probe")},
            {QStringLiteral("version"), QStringLiteral("3.2.1.0")},
            {QStringLiteral("lang"), QStringLiteral("pt_BR")},
            {QStringLiteral("partner"), QStringLiteral("partner & co")},
            {QStringLiteral("brand"), QStringLiteral("probe")},
            {QStringLiteral("huid"), QString::fromStdString(Util::SHA1::digest("machine-42"))},
            {QStringLiteral("lt"), QStringLiteral("2")},
            {QStringLiteral("webuid"), QStringLiteral("w-1")},
        };
        QCOMPARE(query.queryItems(QUrl::FullyDecoded), expected);
    }

    void tailLeavesOutWhatIsUnknown()
    {
        hardware->id.clear();
        const QUrlQuery query(QUrl(links->GetUrl(TERMS_OF_USE_URL)));
        QCOMPARE(query.queryItemValue(QStringLiteral("asrc")), QString());
        QCOMPARE(query.queryItemValue(QStringLiteral("partner")), QStringLiteral("builtin partner"));
        QCOMPARE(query.queryItemValue(QStringLiteral("huid")), QString());
        QVERIFY(!query.hasQueryItem(QStringLiteral("webuid")));
    }

    void macrosOfThePages()
    {
        mail->SetString("UserName", "Zoë Q");
        mail->SetString("UserEmail", "z+q@example.org");
        mail->SetBool("isConfirmed", true);
        const QString install = links->GetUrl(THANK_FOR_INSTALL_URL);
        QVERIFY2(install.endsWith(QLatin1String("&version=3.2.1.0&name=Zo%C3%AB%20Q&email=z%2Bq%40example.org"
                                                "&isNewsletterConfirmed=true&isToolbarInstalled=false&")),
                 qPrintable(install));
        installer->SetBool("AdditionalsInstalled", true);
        QVERIFY(links->GetUrl(THANK_FOR_REINSTALL_URL).endsWith(QLatin1String("&isToolbarInstalled=true")));
        QCOMPARE(
            links->GetUrl(CHANGELOG_URL),
            QStringLiteral("https://static.ostrel.com/configs/changelog/capdesk/win/x86_64/pt_BR/changelog"));
        // An empty value still takes the macro's place.
        mail->values.clear();
        QVERIFY(links->GetUrl(COLLECT_EMAIL_URL).endsWith(QLatin1String("&name=&email=")));
    }

    void generateFillsPlaceholders_data()
    {
        QTest::addColumn<QString>("url");
        QTest::addColumn<Parameters>("parameters");
        QTest::addColumn<QString>("expected");

        using P = Parameters;
        QTest::newRow("path placeholder as given") << QStringLiteral("https://cloud.ostrel.com/%1")
                                                   << P{{QStringLiteral("%1"), QStringLiteral("v2/files")}}
                                                   << QStringLiteral("https://cloud.ostrel.com/v2/files");
        QTest::newRow("query placeholders encoded, by bare number too")
            << QStringLiteral("https://h/f?email=%1&feedback=%2")
            << P{{QStringLiteral("1"), QStringLiteral("a&b@c")},
                 {QStringLiteral("%2"), QStringLiteral("50% ok")}}
            << QStringLiteral("https://h/f?email=a%26b%40c&feedback=50%25%20ok");
        QTest::newRow("values are not filled again") << QStringLiteral("https://h/?a=%1&b=%2")
                                                     << P{{QStringLiteral("%1"), QStringLiteral("%2")},
                                                          {QStringLiteral("%2"), QStringLiteral("-LANG-")}}
                                                     << QStringLiteral("https://h/?a=%252&b=-LANG-");
        QTest::newRow("missing placeholder stays")
            << QStringLiteral("https://h/%1/%2") << P{{QStringLiteral("%2"), QStringLiteral("x")}}
            << QStringLiteral("https://h/%1/x");
        QTest::newRow("macro given by the caller")
            << QStringLiteral("https://h/-LANG-/x") << P{{QStringLiteral("-LANG-"), QStringLiteral("de")}}
            << QStringLiteral("https://h/de/x");
        QTest::newRow("dashes of a path are no macro")
            << QStringLiteral("https://h/learn-more-HOT-keys-/") << P{}
            << QStringLiteral("https://h/learn-more-HOT-keys-/");
        QTest::newRow("other keys join the query")
            << QStringLiteral("https://h/p?x=1") << P{{QStringLiteral("nag id"), QStringLiteral("7&8")}}
            << QStringLiteral("https://h/p?x=1&nag%20id=7%268");
        QTest::newRow("and open one")
            << QStringLiteral("https://h/p") << P{{QStringLiteral("k"), QStringLiteral("v")}}
            << QStringLiteral("https://h/p?k=v");
    }

    void generateFillsPlaceholders()
    {
        QFETCH(QString, url);
        QFETCH(Parameters, parameters);
        QFETCH(QString, expected);
        QCOMPARE(links->GenerateUrl(url, parameters), expected);
    }

    void customizationOverrides()
    {
        customization->custom["Hosts/links"] = "go.partner.example";
        customization->custom["Hosts/content"] = "cdn.partner.example:8443";
        customization->custom["Links/CUSTOM_ABOUT_URL"] = "https://partner.example/about?l=-LANG-";
        QVERIFY(links->GetUrl(HELP_URL_menu)
                    .startsWith(QLatin1String("https://go.partner.example/help/?asrc=menu&")));
        QVERIFY(links->GetUrl(SUPPORT_DEVICE_LIST_URL)
                    .startsWith(QLatin1String("https://cdn.partner.example:8443/")));
        QCOMPARE(links->GetUrl(CUSTOM_ABOUT_URL), QStringLiteral("https://partner.example/about?l=pt_BR"));
        // Outside services keep their hosts, and the other empty templates stay empty.
        QCOMPARE(links->GetUrl(YOUTUBE_VIDEO_URL), QStringLiteral("https://www.youtube.com/watch?v=%1"));
        QCOMPARE(links->GetUrl(CUSTOM_WEB_NAG_URL), QString());
    }

    // A link's locale is the look and feel's alone: the URL walk switches only that one, and Qt's
    // default locale or the customization never reach a link.
    void linksTakeTheLookAndFeelsLocale()
    {
        customization->custom["Links/CUSTOM_ABOUT_URL"] = "https://partner.example/about?l=-LANG-";
        const QLocale before;
        QLocale::setDefault(QLocale(QStringLiteral("ja_JP")));
        lookAndFeel->SetLocale("ru_RU");
        const QString url = links->GetUrl(CUSTOM_ABOUT_URL);
        QLocale::setDefault(before);
        QCOMPARE(url, QStringLiteral("https://partner.example/about?l=ru_RU"));
    }

    void unknownKeysGiveNothing()
    {
        LogCapture log;
        QCOMPARE(links->GetUrl(QStringLiteral("NO_SUCH_URL")), QString());
        QCOMPARE(links->GetUrl(static_cast<URLKeys>(3)), QString());
        QCOMPARE(log.matching("No link under").size(), size_t(2));
        QCOMPARE(links->GetUrl(QStringLiteral("FAQ_URL")), links->GetUrl(FAQ_URL));
    }

    void openRefusesEmptyLinks()
    {
        LogCapture log;
        links->OpenUrl(CUSTOM_ABOUT_URL);
        QCOMPARE(log.matching("Not opening the link").size(), size_t(1));
    }

    // Last: it publishes a links manager in the application for the rest of the run.
    void applicationFallsBackToADefaultManager()
    {
        auto& application = *qobject_cast<Application*>(QCoreApplication::instance());
        QVERIFY_EXCEPTION_THROWN(application.GetLinksManager(), std::logic_error);

        application.SetCustomizationManager(customization);
        application.set<IHardwareInfo>(hardware);
        application.SetLookAndFeel(lookAndFeel);
        application.set<IMailSettingsManager>(mail);
        application.set<IProductSettingsManager>(product);
        application.set<IUserSettingsManager>(user);
        application.SetLaunchTypeProcessor(std::make_shared<FakeLaunchType>());

        LogCapture log;
        const QString url = application.GetUrl(HELP_URL_menu);
        QVERIFY(url.startsWith(QLatin1String("https://link.ostrel.com/help/?asrc=menu&app=links-probe&")));
        const std::vector<std::string> expected = {
            "###############################################################",
            "### Deprecated. SetLinksManager before use GetLinksManager! ###",
            "###############################################################",
        };
        QCOMPARE(log.texts(), expected);
        QVERIFY(application.GetLinksManagerSetter()->get());
        QCOMPARE(application.GetLinksManagerSetter()->get(), application.get<ILinksManager>());

        log.clear();
        QCOMPARE(application.GetUrl(HELP_URL_menu), url);
        QVERIFY(log.texts().empty());
    }
};

int main(int argc, char** argv)
{
    Test::initTestEnvironment(argv[0]);
    Application application(argc, argv, std::make_shared<LifetimeManager>(), Application::DISABLE_APP_MUTEX);
    TestLinks test;
    return Test::exec(&test, argc, argv);
}

#include "tst_links.moc"
