// The tracking decorator: the events of a nag's life with their parameters, the operation that
// names a link, the fingerprint verdict, and forwarding without a tracker.

#include "App/Application/ITopManager.h"
#include "App/Application/NagScreen/DefaultActions.h"
#include "App/Application/NagScreen/NagScreenEventHandler.h"
#include "Tracking/ApplicationTrackerFactory.h"

#include "FakeLookAndFeel.h"
#include "LogCapture.h"
#include "NagFakes.h"
#include "RecordingTracker.h"
#include "TestEnvironment.h"

#include <stdexcept>

using namespace Ostrel;
using namespace Ostrel::App;
using namespace Ostrel::App::NagScreen;
using namespace Ostrel::Test;

using Params = std::map<std::string, std::string>;
Q_DECLARE_METATYPE(Params)

namespace {

// Fails a purchase on purpose, to see the operation's name come back afterwards.
class ThrowingActions : public DefaultActions
{
public:
    using DefaultActions::DefaultActions;
    void ShowBuyNow(const AbstractContent&) override { throw std::runtime_error("purchase page broke"); }
};

} // namespace

class EventHandlerTest : public QObject
{
    Q_OBJECT

    ITopManager top;
    std::shared_ptr<FakeManager> manager;
    std::shared_ptr<FakeShowStrategy> show;
    std::shared_ptr<RecordingNagOpener> opener;
    std::shared_ptr<FakeLinksManager> links;
    std::shared_ptr<RecordingTracker> tracker;
    std::shared_ptr<DefaultActions> actions;
    std::shared_ptr<FakeLookAndFeel> lookAndFeel = std::make_shared<FakeLookAndFeel>();

    void install(bool withTracker = true, bool throwing = false)
    {
        manager = std::make_shared<FakeManager>();
        show = std::make_shared<FakeShowStrategy>();
        opener = std::make_shared<RecordingNagOpener>();
        links = std::make_shared<FakeLinksManager>();
        tracker = std::make_shared<RecordingTracker>();
        top.set<IManager>(manager);
        manager->SetShowStrategy(show);
        if (throwing)
            actions = std::make_shared<ThrowingActions>(links, opener, nullptr, nullptr, nullptr, nullptr);
        else
            actions = std::make_shared<DefaultActions>(links, opener, nullptr, nullptr, nullptr, nullptr);
        manager->SetActionStrategy(actions);
        setupNagScreenEventHandler(top, withTracker ? tracker : nullptr);
    }

    Params event(const std::string& name, int nth = 0) const
    {
        for (const auto& recorded : tracker->events()) {
            if (recorded.name == name && nth-- == 0)
                return recorded.params;
        }
        return {{"<missing>", name}};
    }

    static Params contentParams(const AbstractContent& content)
    {
        Params params;
        appendContentParams(params, content);
        return params;
    }

private Q_SLOTS:
    void initTestCase()
    {
        lookAndFeel->locale = "de_DE";
        top.set<ILookAndFeelManager>(lookAndFeel);
    }

    void linksAreNamedByTheOperationInProgress()
    {
        install();
        FakeContent content(QStringLiteral("app_start"), QStringLiteral("trial"));
        show->show = [&](AbstractContent& shown) {
            manager->GetActionStrategy()->ShowBuyNow(shown);
            manager->GetActionStrategy()->OpenUrl(
                shown, QUrl(QStringLiteral("https://x.example/a?link_id=hero&asrc=nag")), {});
            manager->GetActionStrategy()->OpenUrl(shown, QUrl(QStringLiteral("https://x.example/b")), {});
            return 1;
        };
        QCOMPARE(manager->GetShowStrategy()->ShowNag(content), 1);

        QCOMPARE(tracker->names(), (std::vector<std::string>{"NAG_SHOW", "NAG_LINK_CLICK", "NAG_LINK_CLICK",
                                                             "NAG_LINK_CLICK"}));
        Params shown = contentParams(content);
        shown["NAG_LINK_URL"] = "qrc:/fake/main.qml";
        shown["NAG_LINK_ID"] = "ShowNag";
        shown["NAG_ASRC"] = "UNDEFINED";
        shown["NAG_LOCALE"] = "de_DE";
        QCOMPARE(event("NAG_SHOW"), shown);

        const Params buy = event("NAG_LINK_CLICK", 0);
        QCOMPARE(buy.at("NAG_LINK_ID"), std::string("ShowBuyNow"));
        QCOMPARE(buy.at("NAG_LINK_URL_KEY"), std::string("BUY_NOW_URL_firststart"));
        QCOMPARE(buy.at("NAG_ASRC"), std::string("firststart"));
        QCOMPARE(buy.at("NAG_LINK_URL"),
                 std::string("https://link.ostrel.com/buynow/?asrc=firststart&app=probe"));
        const Params ownId = event("NAG_LINK_CLICK", 1);
        QCOMPARE(ownId.at("NAG_LINK_ID"), std::string("hero"));
        QCOMPARE(ownId.at("NAG_ASRC"), std::string("nag"));
        QVERIFY(!ownId.count("NAG_LINK_URL_KEY"));
        const Params plain = event("NAG_LINK_CLICK", 2);
        QCOMPARE(plain.at("NAG_LINK_ID"), std::string("OpenUrl"));
        QCOMPARE(plain.at("NAG_ASRC"), std::string("UNDEFINED"));
        QCOMPARE(opener->opened.size(), std::size_t(3));
    }

    // Also: a web nag's address may carry the user's data, and every event names it.
    void theNagsOwnLocaleWins()
    {
        install();
        FakeContent content;
        content.locale = QStringLiteral("ja_JP");
        content.source = QUrl(QStringLiteral("https://msg.example/n/jo%40x.example/?name=Don%20Quixote&l=1"));
        manager->GetShowStrategy()->ShowNag(content);
        QCOMPARE(event("NAG_SHOW").at("NAG_LOCALE"), std::string("ja_JP"));
        QCOMPARE(event("NAG_SHOW").at("NAG_SOURCE_URL"),
                 std::string("https://msg.example/n/***/?name=***&l=1"));
    }

    void operationIsRestoredAfterAnException()
    {
        install(true, true);
        FakeContent content;
        const auto handlerAsOpener = actions->GetLinksOpener();
        int thrown = 0;
        show->show = [&](AbstractContent& shown) {
            try {
                manager->GetActionStrategy()->ShowBuyNow(shown);
            } catch (const std::runtime_error&) {
                ++thrown;
            }
            handlerAsOpener->OpenUrl(shown, QStringLiteral("https://x.example/"), {});
            return 1;
        };
        manager->GetShowStrategy()->ShowNag(content);
        handlerAsOpener->OpenUrl(content, QStringLiteral("https://x.example/"), {});
        QCOMPARE(thrown, 1);
        QCOMPARE(event("NAG_LINK_CLICK", 0).at("NAG_LINK_ID"), std::string("ShowNag"));
        QCOMPARE(event("NAG_LINK_CLICK", 1).at("NAG_LINK_ID"), std::string());
    }

    void qmlParametersArriveUpperCased()
    {
        install();
        FakeContent content;
        LogCapture log;
        manager->GetActionStrategy()->PerformButtonAction(
            content, QStringLiteral("ok"),
            QVariantMap{{QStringLiteral("foo"), 1}, {QStringLiteral("list"), QVariantList{1, 2}}});
        manager->GetActionStrategy()->PerformButtonAction(content, QStringLiteral("later"), QVariant(5));
        manager->GetActionStrategy()->NagClose(content, 0, {{QStringLiteral("why"), QStringLiteral("esc")}});
        manager->GetActionStrategy()->ScreenShown(content, {{QStringLiteral("page"), 2}});

        Params click = contentParams(content);
        click["FOO"] = "1";
        click["BUTTON_ID"] = "ok";
        QCOMPARE(event("NAG_BUTTON_CLICK"), click);
        QCOMPARE(event("NAG_BUTTON_CLICK", 1).at("BUTTON_ID"), std::string("later"));
        QCOMPARE(
            log.matching("Cannot convert QVariant to QMap, wrong parameters in QML function call").size(),
            std::size_t(1));
        QCOMPARE(event("NAG_CLOSE").at("WHY"), std::string("esc"));
        QCOMPARE(event("NAG_CLOSE").at("NAG_EXIT"), std::string("0"));
        QCOMPARE(event("NAG_SCREEN_SHOW").at("PAGE"), std::string("2"));
    }

    void customActionsKeepTheUsersAddressOut_data()
    {
        QTest::addColumn<QString>("action");
        QTest::addColumn<bool>("withValues");
        QTest::newRow("collectEmail") << QStringLiteral("collectEmail") << false;
        QTest::newRow("sendNPSInfo") << QStringLiteral("sendNPSInfo") << false;
        QTest::newRow("copyPromocode") << QStringLiteral("copyPromocode") << true;
    }

    void customActionsKeepTheUsersAddressOut()
    {
        QFETCH(QString, action);
        QFETCH(bool, withValues);
        install();
        FakeContent content;
        manager->GetActionStrategy()->PerformCustomAction(
            content, action, QVariantMap{{QStringLiteral("email"), QStringLiteral("a@b.example")}});
        const Params sent = event("CUSTOM_ACTION_PERFORMED");
        QCOMPARE(sent.at("NAG_CUSTOM_ACTION"), Util::QStringToUtf8(action));
        QCOMPARE(sent.count("EMAIL") == 1, withValues);
    }

    void nagFailedAfterTheShow()
    {
        install();
        FakeContent content;
        show->show = [&](AbstractContent&) {
            content.changeState(ContentState::Failed);
            return -1;
        };
        QCOMPARE(manager->GetShowStrategy()->ShowNag(content), -1);
        QCOMPARE(tracker->names(), (std::vector<std::string>{"NAG_SHOW", "NAG_FAILED"}));
        QCOMPARE(event("NAG_FAILED"), contentParams(content));

        tracker->clear();
        FakeContent loading;
        loading.changeState(ContentState::Loading);
        manager->GetShowStrategy()->ShowNag(loading);
        QVERIFY(tracker->names().empty());
    }

    void hashVerdict_data()
    {
        QTest::addColumn<QString>("internal");
        QTest::addColumn<QString>("computed");
        QTest::addColumn<Params>("verdict");
        QTest::newRow("one of four differs")
            << QStringLiteral("0101") << QStringLiteral("0111")
            << Params{{"NAG_HASH_MATCH", "3/4"}, {"NAG_HASH_MATCH_PERCENT", "75.000000"}};
        QTest::newRow("thirty-one of thirty-two")
            << QString(32, QLatin1Char('1')) << QString(31, QLatin1Char('1')) + QLatin1Char('0')
            << Params{{"NAG_HASH_MATCH", "31/32"}, {"NAG_HASH_MATCH_PERCENT", "96.875000"}};
        QTest::newRow("sizes differ")
            << QStringLiteral("01") << QStringLiteral("011")
            << Params{{"NAG_HASH_ERROR", "NAG_INTERNAL_HASH and NAG_COMPUTED_HASH have different sizes"}};
        QTest::newRow("internal not binary") << QStringLiteral("01a1") << QStringLiteral("01x1")
                                             << Params{{"NAG_HASH_ERROR", "NAG_INTERNAL_HASH is not binary"}};
        QTest::newRow("computed not binary") << QStringLiteral("0101") << QStringLiteral("0121")
                                             << Params{{"NAG_HASH_ERROR", "NAG_COMPUTED_HASH is not binary"}};
        QTest::newRow("computed empty") << QStringLiteral("0101") << QString() << Params{};
    }

    void hashVerdict()
    {
        QFETCH(QString, internal);
        QFETCH(QString, computed);
        QFETCH(Params, verdict);
        install();
        FakeContent content;
        // The hash arrives while the nag is on screen, as after its first frame.
        show->show = [&](AbstractContent&) {
            manager->setHash({QStringLiteral("welcome"), QSize(16, 8), internal, computed});
            return 1;
        };
        manager->GetShowStrategy()->ShowNag(content);
        Params expected = contentParams(content);
        expected["NAG_HASH_NAME"] = "welcome";
        expected["NAG_HASH_WIDTH"] = "16";
        expected["NAG_HASH_HEIGHT"] = "8";
        expected["NAG_INTERNAL_HASH"] = Util::QStringToUtf8(internal);
        expected["NAG_COMPUTED_HASH"] = Util::QStringToUtf8(computed);
        expected["SCREEN_SCALE"] = "1.00";
        expected.insert(verdict.begin(), verdict.end());
        QCOMPARE(event("NAG_HASH"), expected);

        // Reported once: a later hash of the same show, or one after it, goes nowhere.
        manager->setHash({QStringLiteral("late"), QSize(1, 1), QStringLiteral("1"), QStringLiteral("1")});
        QCOMPARE(tracker->names(), (std::vector<std::string>{"NAG_SHOW", "NAG_HASH"}));
    }

    void hashAlreadySetIsReportedAtOnce()
    {
        install();
        manager->setHash(
            {QStringLiteral("earlier"), QSize(2, 2), QStringLiteral("11"), QStringLiteral("10")});
        FakeContent content;
        manager->GetShowStrategy()->ShowNag(content);
        QCOMPARE(tracker->names(), (std::vector<std::string>{"NAG_SHOW", "NAG_HASH"}));
        QCOMPARE(event("NAG_HASH").at("NAG_HASH_MATCH"), std::string("1/2"));
    }

    void withoutTrackerEverythingStillForwards()
    {
        install(false);
        FakeContent content;
        bool shown = false;
        show->show = [&](AbstractContent& nag) {
            shown = true;
            manager->GetActionStrategy()->OpenUrl(nag, QUrl(QStringLiteral("https://x.example/-NAG_ID-")),
                                                  {});
            return 2;
        };
        QCOMPARE(manager->GetShowStrategy()->ShowNag(content), 2);
        QVERIFY(shown);
        QCOMPARE(opener->opened, (std::vector<QString>{QStringLiteral("https://x.example/nag_7")}));
        QVERIFY(tracker->events().empty());
    }

    void setupNeedsDefaultActions()
    {
        ITopManager empty;
        QVERIFY_EXCEPTION_THROWN(setupNagScreenEventHandler(empty, tracker), std::logic_error);
        auto other = std::make_shared<FakeManager>();
        other->SetShowStrategy(std::make_shared<FakeShowStrategy>());
        other->SetActionStrategy(std::make_shared<DefaultActions>(nullptr, std::weak_ptr<INagLinksOpener>(),
                                                                  nullptr, nullptr, nullptr, nullptr));
        empty.set<IManager>(other);
        try {
            setupNagScreenEventHandler(empty, tracker);
            QFAIL("a missing links opener must be refused");
        } catch (const std::logic_error& error) {
            QCOMPARE(QString::fromUtf8(error.what()), QStringLiteral("NotNull can not initialized by null"));
        }
    }
};

OSTREL_TEST_MAIN(EventHandlerTest)
#include "tst_eventhandler.moc"
