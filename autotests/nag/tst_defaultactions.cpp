// The product's answers to a nag: its macros in a clicked link, the purchase and live chat
// tables, the promo code, the collected address and its failure report, links objects gone.

#include "App/Application/NagScreen/DefaultActions.h"
#include "Interfaces/IHttpClient.h"
#include "Tracking/ApplicationTrackerFactory.h"

#include "LogCapture.h"
#include "MemorySettings.h"
#include "NagFakes.h"
#include "RecordingTracker.h"
#include "TestEnvironment.h"

#include <QClipboard>
#include <QTimer>

using namespace Ostrel;
using namespace Ostrel::App;
using namespace Ostrel::App::NagScreen;
using namespace Ostrel::Test;

namespace {

// Answers every request with a server error, later, as a real client does.
class FailingHttpClient : public Networking::IHttpClient
{
public:
    void send(const Networking::HttpRequest& request, Callback done) override
    {
        requests.push_back(request);
        QTimer::singleShot(0, [done]() { done({500, {}, "HTTP 500"}); });
    }
    std::vector<Networking::HttpRequest> requests;
};

} // namespace

class DefaultActionsTest : public QObject
{
    Q_OBJECT

    std::shared_ptr<FakeLinksManager> links;
    std::shared_ptr<RecordingNagOpener> opener;
    std::shared_ptr<FailingHttpClient> http;
    std::shared_ptr<MemoryMailSettings> mail;
    std::unique_ptr<DefaultActions> actions;

private Q_SLOTS:
    void init()
    {
        links = std::make_shared<FakeLinksManager>();
        opener = std::make_shared<RecordingNagOpener>();
        http = std::make_shared<FailingHttpClient>();
        mail = std::make_shared<MemoryMailSettings>();
        actions = std::make_unique<DefaultActions>(links, opener, nullptr, nullptr, http, mail);
    }

    void cleanup() { Tracking::ApplicationTrackerFactory::setApplicationTracker(nullptr); }

    void aClickedLinkGetsTheNagsMacros()
    {
        FakeContent content(QStringLiteral("before_routine"), QStringLiteral("trial"));
        actions->OpenUrl(
            content,
            QUrl(QStringLiteral(
                     "https://x.example/p?id=-NAG_ID-&m=-APP_MODE-&a=-APP_ACTION-&-TAIL_WITH_ARGS-"),
                 QUrl::TolerantMode),
            {});
        actions->OpenUrlKey(content, QStringLiteral("FAQ_URL_menu"), {});
        QCOMPARE(opener->opened,
                 (std::vector<QString>{
                     QStringLiteral("https://x.example/p?id=nag_7&m=trial&a=before_routine&app=probe"),
                     QStringLiteral("https://link.ostrel.com/faq/?asrc=menu&app=probe")}));
    }

    void purchaseAndLiveChatPages_data()
    {
        QTest::addColumn<bool>("liveChat");
        QTest::addColumn<QString>("action");
        QTest::addColumn<QString>("mode");
        QTest::addColumn<QString>("asrc"); // empty: no page

        QTest::newRow("buy before routine, free") << false << "before_routine"
                                                  << "free"
                                                  << "se";
        QTest::newRow("buy after start, trial") << false << "app_start"
                                                << "trial"
                                                << "firststart";
        QTest::newRow("buy on close, free") << false << "app_close"
                                            << "free"
                                            << "traymenu";
        QTest::newRow("buy in authorization, any mode") << false << "authorization_window"
                                                        << "licensed"
                                                        << "nag_authorization_window_buynow";
        QTest::newRow("buy on close, licensed") << false << "app_close"
                                                << "licensed"
                                                << "";
        QTest::newRow("buy with a mode's case changed") << false << "before_routine"
                                                        << "Free"
                                                        << "";
        QTest::newRow("chat before routine, trial") << true << "before_routine"
                                                    << "trial"
                                                    << "menu";
        QTest::newRow("chat on close, trial") << true << "app_close"
                                              << "trial"
                                              << "menu";
        QTest::newRow("chat after start") << true << "app_start"
                                          << "trial"
                                          << "";
    }

    void purchaseAndLiveChatPages()
    {
        QFETCH(bool, liveChat);
        QFETCH(QString, action);
        QFETCH(QString, mode);
        QFETCH(QString, asrc);
        FakeContent content(action, mode);
        LogCapture log;
        if (liveChat)
            actions->OpenLiveChat(content);
        else
            actions->ShowBuyNow(content);
        const std::string function = liveChat ? "OpenLiveChat" : "ShowBuyNow";
        const auto missed = log.matching("Ostrel::App::NagScreen::DefaultActions::" + function +
                                         ": There is no asrc for mode 0x");
        if (asrc.isEmpty()) {
            QVERIFY(opener->opened.empty());
            QCOMPARE(missed.size(), std::size_t(1));
            QVERIFY(missed.front().find(" and action 0x") != std::string::npos);
        } else {
            QCOMPARE(opener->opened.size(), std::size_t(1));
            QVERIFY2(opener->opened.front().contains(QStringLiteral("asrc=") + asrc + QLatin1Char('&')),
                     qPrintable(opener->opened.front()));
            QVERIFY(missed.empty());
        }
    }

    void linksObjectsGoneMeansNothingHappens()
    {
        // The e-mail sender keeps the links manager it was made with: this one has none.
        actions = std::make_unique<DefaultActions>(links, opener, nullptr, nullptr, nullptr, nullptr);
        FakeContent content(QStringLiteral("authorization_window"), QStringLiteral("free"));
        opener.reset();
        actions->OpenUrl(content, QUrl(QStringLiteral("https://x.example/")), {});
        actions->ShowBuyNow(content);
        links.reset();
        QVERIFY(actions->PrepareUrl(content, QStringLiteral("https://x.example/")).isEmpty());
        QVERIFY(actions->Key2url(FAQ_URL).isEmpty());
        QVERIFY(!actions->GetLinksManager());
        QVERIFY(!actions->GetLinksOpener());
    }

    void promoCodeGoesToTheClipboard()
    {
        FakeContent content;
        QGuiApplication::clipboard()->setText(QStringLiteral("before"));
        actions->PerformCustomAction(content, QStringLiteral("copyPromocode"),
                                     QVariantMap{{QStringLiteral("promocode"), QStringLiteral("SAVE-20")}});
        QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("SAVE-20"));
        actions->PerformCustomAction(content, QStringLiteral("copyPromocode"), QVariantMap{});
        QCOMPARE(QGuiApplication::clipboard()->text(), QString());
    }

    void unknownActionsAreLogged_data()
    {
        QTest::addColumn<QString>("action");
        QTest::newRow("case differs") << QStringLiteral("CollectEmail");
        QTest::newRow("survey answer") << QStringLiteral("sendNPSInfo");
        QTest::newRow("non-ASCII") << QStringLiteral("kopieren\u00e9");
    }

    void unknownActionsAreLogged()
    {
        QFETCH(QString, action);
        FakeContent content;
        LogCapture log;
        actions->PerformCustomAction(content, action,
                                     QVariantMap{{QStringLiteral("email"), QStringLiteral("a@b.example")}});
        QCOMPARE(log.matching("Unsupported action: " + Util::QStringToUtf8(action)).size(), std::size_t(1));
        QVERIFY(http->requests.empty());
    }

    void aFailedAddressIsReported()
    {
        auto tracker = std::make_shared<RecordingTracker>();
        Tracking::ApplicationTrackerFactory::setApplicationTracker(tracker);
        FakeContent content(QStringLiteral("app_close"), QStringLiteral("trial"));
        LogCapture log;
        // No "email": the request goes out with an empty address all the same.
        actions->PerformCustomAction(content, QStringLiteral("collectEmail"),
                                     QVariantMap{{QStringLiteral("name"), QStringLiteral("J\u00fcrgen")}});
        QTRY_COMPARE(tracker->names(), std::vector<std::string>{"NAG_FAILED_SEND_EMAIL"});
        QCOMPARE(http->requests.size(), std::size_t(1));
        QCOMPARE(mail->GetString("UserName", "?"), std::string("J\xc3\xbcrgen"));
        QCOMPARE(mail->GetString("UserEmail", "?"), std::string());
        const auto params = tracker->events().front().params;
        const std::string error = params.at("ERROR_TEXT");
        QVERIFY(!error.empty());
        const std::map<std::string, std::string> expected = {
            {"NAG_ID", "nag_7"},       {"NAG_NAME", "Fake nag"},        {"NAG_TYPE", "local"},
            {"NAG_APP_MODE", "trial"}, {"NAG_APP_ACTION", "app_close"}, {"ERROR_TEXT", error}};
        QCOMPARE(params, expected);
        QCOMPARE(log.matching("CollectEmail request failed, error: " + error).size(), std::size_t(1));
    }
};

OSTREL_TEST_MAIN(DefaultActionsTest)
#include "tst_defaultactions.moc"
