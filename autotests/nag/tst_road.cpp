// The road of one nag as the host wires it: the nag manager with the dialog strategy behind the
// tracking decorator, the default actions with the links opener of the links manager, the URL
// handler and a stand-in browser process. A real QML nag is shown, its button and its link are
// clicked, and it is accepted; the tracker holds every step in order. Then two more nags in a row,
// one drawn otherwise and one without a fingerprint: each reports its own, or none.

#include "App/Application/IBrowserSources.h"
#include "App/Application/ITopManager.h"
#include "App/Application/NagScreen/DefaultActions.h"
#include "App/Application/NagScreen/DialogStrategy.h"
#include "App/Application/NagScreen/NagIdLockStorage.h"
#include "App/Application/NagScreen/NagLinksOpener.h"
#include "App/Application/NagScreen/NagScreenEventHandler.h"
#include "App/Application/NagScreen/WebNagUrlGenerator.h"
#include "App/Application/PreferredBrowser.h"
#include "App/Application/URLHandler.h"
#include "Core/LinksManager.h"
#include "Nag/DefaultNagsSettings.h"
#include "Nag/NagManager.h"
#include "Tracking/ApplicationTrackerFactory.h"

#include "FakeCustomization.h"
#include "FakeHardware.h"
#include "FakeLaunchType.h"
#include "FakeLookAndFeel.h"
#include "MemorySettings.h"
#include "NoBrowserSources.h"
#include "RecordingTracker.h"
#include "TestEnvironment.h"

#include <QDialog>
#include <QFile>
#include <QMainWindow>
#include <QQuickItem>
#include <QQuickWidget>
#include <QTemporaryDir>
#include <QTimer>

#include <functional>

using namespace Ostrel;
using namespace Ostrel::App;
using namespace Ostrel::App::NagScreen;
using namespace Ostrel::Test;

namespace {

// As the web configuration of a product that collects fingerprints.
class HashingNagsSettings : public WebConfig::DefaultNagsSettings
{
public:
    bool sendNagHashEvent() const override { return true; }
};

QQuickWidget* shownNag()
{
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        if (widget->objectName() == QLatin1String("WebNag") && widget->isVisible())
            return widget->findChild<QQuickWidget*>();
    }
    return nullptr;
}

} // namespace

class RoadTest : public QObject
{
    Q_OBJECT

    QTemporaryDir dir;
    QString record;
    QMainWindow window;
    ITopManager top;
    std::shared_ptr<RecordingTracker> tracker = std::make_shared<RecordingTracker>();
    std::unique_ptr<PreferredBrowser> browser;
    std::unique_ptr<URLHandler> urlHandler;
    std::shared_ptr<NagManager> manager;
    std::string firstFingerprint;

    std::vector<RecordingTracker::Event> roadEvents() const
    {
        std::vector<RecordingTracker::Event> result;
        for (const auto& event : tracker->events()) {
            if (event.name != "PREFERRED_BROWSER")
                result.push_back(event);
        }
        return result;
    }

    bool seen(const std::string& name) const
    {
        for (const auto& event : tracker->events()) {
            if (event.name == name)
                return true;
        }
        return false;
    }

    // Shows the nag of `action` and clicks where its accept is once `ready` holds for the nag on
    // screen (asked every 20 ms); a nag still up after 20 s is closed, and the code tells.
    int showAndAccept(const QString& action, const std::function<bool()>& ready)
    {
        QTimer clicks;
        clicks.setInterval(20);
        connect(&clicks, &QTimer::timeout, this, [&]() {
            if (QQuickWidget* nag = shownNag(); nag && ready())
                QTest::mouseClick(nag, Qt::LeftButton, {}, QPoint(200, 150));
        });
        clicks.start();
        QTimer::singleShot(20000, &clicks, []() {
            if (QWidget* nag = shownNag())
                nag->window()->close();
        });
        return manager->ShowNag(action);
    }

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(dir.isValid());
        record = dir.filePath(QStringLiteral("browser.txt"));
        qputenv("OSTREL_BROWSER_STUB_RECORD", QFile::encodeName(record));
        Tracking::ApplicationTrackerFactory::setApplicationTracker(tracker);

        window.setGeometry(50, 50, 800, 500);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));

        // The components, as the host sets them.
        const auto customization = std::make_shared<FakeCustomization>();
        const auto hardware = std::make_shared<FakeHardware>();
        const auto lookAndFeel = std::make_shared<FakeLookAndFeel>();
        lookAndFeel->locale = "fr_FR";
        const auto product = std::make_shared<MemoryProductSettings>();
        const auto user = std::make_shared<MemoryUserSettings>();
        const auto mail = std::make_shared<MemoryMailSettings>();
        const auto links =
            std::make_shared<LinksManager>(customization, hardware, lookAndFeel, mail, product, user,
                                           std::make_shared<FakeLaunchType>(), nullptr, nullptr);
        top.set<ICustomizationManager>(customization);
        top.set<ILookAndFeelManager>(lookAndFeel);
        top.set<IProductSettingsManager>(product);
        top.set<IUserSettingsManager>(user);
        top.set<ILinksManager>(links);

        browser = std::make_unique<PreferredBrowser>(nullptr, std::make_shared<NoBrowserSources>());
        browser->SetContextCallback([]() {
            return AbstractPreferredBrowser::PreferredBrowserContext{QString(), QString(),
                                                                     QStringLiteral(BROWSER_STUB)};
        });
        urlHandler = std::make_unique<URLHandler>(QCoreApplication::instance(), *browser);

        // The nag manager with its strategies, then the tracking in front of them.
        const auto nagsSettings = std::make_shared<HashingNagsSettings>();
        manager = std::make_shared<NagManager>(product, QStringLiteral(":/road/nagMap.json"));
        manager->SetNagsSettings(nagsSettings);
        manager->SetLocaleProvider([]() { return QStringLiteral("fr_FR"); });
        manager->SetShowStrategy(std::make_shared<DialogStrategy>(nagsSettings));
        const auto linksOpener = fromLinksOpener(links);
        manager->SetActionStrategy(
            std::make_shared<DefaultActions>(links, linksOpener, customization, nullptr, nullptr, mail));
        const auto locks = std::make_shared<NagIdLockStorage>(product);
        manager->SetNagIdLockStorage(locks);
        manager->SetWebNagUrlGenerator(std::make_shared<WebNagUrlGenerator>(top, locks));
        top.set<IManager>(manager);
        setupNagScreenEventHandler(top, tracker);
    }

    void cleanupTestCase() { Tracking::ApplicationTrackerFactory::setApplicationTracker(nullptr); }

    void oneNagFromShowToClose()
    {
        // The user, once the nag is up: waits for its fingerprint, chooses a plan, opens the
        // link, waits for the browser, accepts.
        int step = 0;
        const int code = showAndAccept(QStringLiteral("app_start"), [&]() {
            QQuickWidget* nag = shownNag();
            if (step == 0 && seen("NAG_HASH")) {
                QTest::mouseClick(nag, Qt::LeftButton, {}, QPoint(100, 50));
                ++step;
            } else if (step == 1) {
                QTest::mouseClick(nag, Qt::LeftButton, {}, QPoint(300, 50));
                ++step;
            } else if (step == 2 && QFile::exists(record)) {
                ++step;
                return true;
            }
            return false;
        });
        QCOMPARE(step, 3);
        QCOMPARE(code, 1);

        const auto events = roadEvents();
        std::vector<std::string> names;
        for (const auto& event : events)
            names.push_back(event.name);
        QCOMPARE(names, (std::vector<std::string>{"NAG_SHOW", "NAG_HASH", "NAG_BUTTON_CLICK",
                                                  "NAG_LINK_CLICK", "URL_OPEN", "NAG_CLOSE"}));
        const auto& show = events[0].params;
        QCOMPARE(show.at("NAG_ID"), std::string("road_1"));
        QCOMPARE(show.at("NAG_LINK_ID"), std::string("ShowNag"));
        QCOMPARE(show.at("NAG_LOCALE"), std::string("fr_FR"));
        const auto& hash = events[1].params;
        QCOMPARE(hash.at("NAG_HASH_NAME"), std::string("road"));
        QCOMPARE(hash.at("NAG_INTERNAL_HASH"), std::string("10101010101010101010101010101010"));
        QCOMPARE(hash.at("NAG_COMPUTED_HASH").size(), std::size_t(32));
        QVERIFY(hash.count("NAG_HASH_MATCH") && hash.count("NAG_HASH_MATCH_PERCENT"));
        firstFingerprint = hash.at("NAG_COMPUTED_HASH");
        const auto& button = events[2].params;
        QCOMPARE(button.at("BUTTON_ID"), std::string("plan"));
        QCOMPARE(button.at("PLAN"), std::string("pro"));
        QCOMPARE(button.at("SEATS"), std::string("3"));
        const auto& link = events[3].params;
        QCOMPARE(link.at("NAG_LINK_ID"), std::string("road_faq"));
        QCOMPARE(link.at("NAG_LINK_URL_KEY"), std::string("FAQ_URL_menu"));
        QCOMPARE(link.at("NAG_ASRC"), std::string("menu"));
        QCOMPARE(link.at("NAG_ID"), std::string("road_1"));
        QCOMPARE(events[4].params.at("BROWSER_PATH"), std::string(BROWSER_STUB));
        QCOMPARE(events[4].params.at("NAVIGATE_URL"), link.at("NAG_LINK_URL"));
        QCOMPARE(events[5].params.at("NAG_EXIT"), std::string("1"));

        QFile started(record);
        QVERIFY(started.open(QIODevice::ReadOnly));
        QVERIFY(started.readAll().startsWith(
            "https://link.ostrel.com/faq/?asrc=menu&link_id=road_faq&app=links-probe"));
    }

    void theNextNagsReportTheirOwnFingerprint()
    {
        QVERIFY2(!firstFingerprint.empty(),
                 "runs after oneNagFromShowToClose, whose fingerprint it compares");
        tracker->clear();
        QCOMPARE(showAndAccept(QStringLiteral("app_close"), [&]() { return seen("NAG_HASH"); }), 1);
        // The nag without a fingerprint stays up for many times the first frame's delay before it is
        // accepted: a wait before the check that no fingerprint is reported for it.
        int ticks = 0;
        QCOMPARE(showAndAccept(QStringLiteral("before_routine"), [&]() { return ++ticks > 25; }), 1);

        const auto events = roadEvents();
        std::vector<std::string> names;
        for (const auto& event : events)
            names.push_back(event.name);
        QCOMPARE(names,
                 (std::vector<std::string>{"NAG_SHOW", "NAG_HASH", "NAG_CLOSE", "NAG_SHOW", "NAG_CLOSE"}));
        const auto& hash = events[1].params;
        QCOMPARE(hash.at("NAG_ID"), std::string("road_2"));
        QCOMPARE(hash.at("NAG_HASH_NAME"), std::string("road_stripes"));
        QCOMPARE(hash.at("NAG_INTERNAL_HASH"), std::string("00011000000110000001100000011000"));
        QCOMPARE(hash.at("NAG_HASH_MATCH"), std::string("32/32"));
        QVERIFY(hash.at("NAG_COMPUTED_HASH") != firstFingerprint);
        QCOMPARE(events[3].params.at("NAG_ID"), std::string("road_3"));
    }
    // By keyboard alone: Escape ends a shipped nag with the very tracking its close control gives,
    // and the close control is reached from the nag's focus by Shift+Tab and pressed with Space.
    void escapeIsTrackedAsTheCloseControl()
    {
        manager->OverrideNagPath(QStringLiteral("keyboard"),
                                 QStringLiteral(":/NagScreen/app_close/main.qml"));
        std::vector<std::map<std::string, std::string>> closes;
        for (const bool escape : {true, false}) {
            tracker->clear();
            QTimer keys;
            keys.setInterval(20);
            connect(&keys, &QTimer::timeout, this, [&]() {
                QQuickWidget* nag = shownNag();
                if (!nag || !nag->rootObject() || !nag->rootObject()->hasActiveFocus())
                    return;
                keys.stop();
                if (escape) {
                    QTest::keyClick(nag, Qt::Key_Escape);
                } else {
                    QTest::keyClick(nag, Qt::Key_Backtab);
                    QTest::keyClick(nag, Qt::Key_Space);
                }
            });
            keys.start();
            QTimer::singleShot(20000, &keys, []() {
                if (QWidget* nag = shownNag())
                    nag->window()->close();
            });
            QCOMPARE(manager->ShowNag(QStringLiteral("keyboard")), 2);
            const auto events = roadEvents();
            QVERIFY(!events.empty());
            QCOMPARE(events.back().name, std::string("NAG_CLOSE"));
            closes.push_back(events.back().params);
        }
        QCOMPARE(closes.at(0), closes.at(1));
        QCOMPARE(closes.at(0).at("NAG_EXIT"), std::string("0"));
    }
};

OSTREL_TEST_MAIN(RoadTest)
#include "tst_road.moc"
