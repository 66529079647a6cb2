// The thank-you page: the wait for the product's window, the report, and which page opens.

#include "App/Application/Extensions/Tyfi/OpenWindowWaiter.h"
#include "App/Application/Extensions/Tyfi/Tyfi.h"
#include "Tracking/ApplicationTrackerFactory.h"

#include "ExtensionFakes.h"
#include "RecordingTracker.h"
#include "TestEnvironment.h"

#include <QWidget>

#include <condition_variable>
#include <mutex>
#include <thread>

using namespace Ostrel;
using namespace Ostrel::App;
using namespace Ostrel::Test;

namespace {
QString keyUrl(URLKeys key)
{
    return RecordingLinks().GetUrl(key);
}

// The whole wait in a few milliseconds: the counts are what matter, not the clock.
const WindowWaitTimings ShortWait{40, std::chrono::milliseconds(1)};

// Ends the test process if it is still armed after ten seconds: a call that blocks the GUI thread
// must fail the test, not hang it.
class Watchdog
{
public:
    explicit Watchdog(const char* what)
        : m_thread([this, what]() {
              std::unique_lock<std::mutex> lock(m_mutex);
              if (!m_disarmed.wait_for(lock, std::chrono::seconds(10), [this]() { return m_done; }))
                  qFatal("Still blocked after 10 s: %s", what);
          })
    {
    }
    ~Watchdog()
    {
        {
            std::lock_guard<std::mutex> lock(m_mutex);
            m_done = true;
        }
        m_disarmed.notify_all();
        m_thread.join();
    }

private:
    std::mutex m_mutex;
    std::condition_variable m_disarmed;
    bool m_done = false;
    std::thread m_thread;
};
} // namespace

class TestTyfi : public QObject
{
    Q_OBJECT

    std::shared_ptr<RecordingTracker> m_tracker;
    std::shared_ptr<ExtensionCustomization> m_customization;
    std::shared_ptr<RecordingLinks> m_links;
    std::shared_ptr<MemoryProductSettings> m_product;
    std::shared_ptr<SettableLaunchType> m_launchType;
    std::shared_ptr<HoldingGateway> m_gateway;

    std::unique_ptr<Tyfi> make(bool withGateway = false, const WindowWaitTimings& timings = ShortWait)
    {
        auto tyfi =
            std::make_unique<Tyfi>(m_customization, m_links, std::make_shared<MemoryInstallerSettings>(),
                                   m_product, m_launchType, withGateway ? m_gateway : nullptr);
        tyfi->setWaitTimings(timings);
        return tyfi;
    }

    // The attempt counts reported so far.
    QStringList reportedAttempts() const
    {
        QStringList counts;
        for (const auto& event : m_tracker->events()) {
            if (event.name == "TYFI_CHECK_WINDOW")
                counts.append(QString::fromStdString(event.params.at("ATTEMPT_COUNT")));
        }
        return counts;
    }

private slots:
    void init()
    {
        m_tracker = std::make_shared<RecordingTracker>();
        Tracking::ApplicationTrackerFactory::setApplicationTracker(m_tracker);
        m_customization = std::make_shared<ExtensionCustomization>();
        m_links = std::make_shared<RecordingLinks>();
        m_product = std::make_shared<MemoryProductSettings>();
        m_launchType = std::make_shared<SettableLaunchType>();
        m_gateway = std::make_shared<HoldingGateway>();
    }

    void cleanup()
    {
        Tracking::ApplicationTrackerFactory::setApplicationTracker(nullptr);
        // The report arrives on the helper thread; what it reaches must not.
        QVERIFY(!m_links->calledOffGuiThread());
        QVERIFY(!m_gateway->calledOffGuiThread());
    }

    void pageOnceTheWindowShows_data()
    {
        QTest::addColumn<int>("launchType");
        QTest::addColumn<QString>("pageType");
        QTest::addColumn<QString>("bundle");
        QTest::addColumn<bool>("waits");
        QTest::addColumn<QStringList>("opened");

        const QStringList none;
        QTest::newRow("first launch, thank you")
            << 1 << "thankyou"
            << "" << true << QStringList{keyUrl(URLKeys::THANK_FOR_INSTALL_URL)};
        QTest::newRow("update, thank you again")
            << 2 << "thankyou"
            << "" << true << QStringList{keyUrl(URLKeys::THANK_FOR_REINSTALL_URL)};
        QTest::newRow("buy now") << 1 << "buynow"
                                 << "" << true << QStringList{keyUrl(URLKeys::BUY_NOW_URL_firststart)};
        QTest::newRow("unknown page type waits, opens nothing") << 1 << "survey"
                                                                << "" << true << none;
        QTest::newRow("background launch") << 4 << "thankyou"
                                           << "" << false << none;
        QTest::newRow("no page type") << 1 << ""
                                      << "" << false << none;
        QTest::newRow("part of a bundle") << 1 << "thankyou"
                                          << "suite" << false << none;
    }

    void pageOnceTheWindowShows()
    {
        QFETCH(int, launchType);
        QFETCH(QString, pageType);
        QFETCH(QString, bundle);
        QFETCH(bool, waits);
        QFETCH(QStringList, opened);
        m_launchType->type = launchType;
        m_customization->pageType = pageType.toStdString();
        if (!bundle.isEmpty())
            m_product->values["BUNDLE_NAME"] = bundle.toStdString();

        QWidget window;
        window.show();
        // One attempt: a wait that should not have begun would report within a millisecond or so.
        const auto tyfi = make(false, WindowWaitTimings{1, std::chrono::milliseconds(1)});
        tyfi->onStart();
        if (waits) {
            QTRY_COMPARE(reportedAttempts(), QStringList{QStringLiteral("1")});
        } else {
            // A check that nothing comes: the time of a wait that never began.
            QTest::qWait(100);
            QCOMPARE(reportedAttempts(), QStringList());
        }
        QCOMPARE(m_links->opened, opened);
    }

    void windowShownLaterEndsTheWait()
    {
        // Attempts enough to outlast any machine: only the window can end this wait in time.
        const auto tyfi = make(false, WindowWaitTimings{1000000, std::chrono::milliseconds(1)});
        tyfi->onStart();
        QWidget window;
        QTimer::singleShot(0, &window, &QWidget::show);
        QTRY_COMPARE(reportedAttempts().size(), 1);
        const int attempts = reportedAttempts().first().toInt();
        QVERIFY2(attempts >= 1 && attempts < 1000000, qPrintable(reportedAttempts().first()));
        QCOMPARE(m_links->opened, QStringList{keyUrl(URLKeys::THANK_FOR_INSTALL_URL)});
    }

    void hiddenWindowDoesNotCount()
    {
        QWidget window;
        window.show();
        window.hide();
        OpenWindowWaiter waiter(WindowWaitTimings{7, std::chrono::milliseconds(1)});
        // Queued to this thread, as Tyfi takes it: the signal comes on the helper thread.
        QList<int> finished;
        connect(&waiter, &OpenWindowWaiter::Finished, this,
                [&finished](int attempts) { finished << attempts; });
        waiter.Start();
        QTRY_COMPARE(finished, QList<int>{7});
        // A waiter that has finished waits again.
        waiter.Start();
        QTRY_COMPARE(finished, (QList<int>{7, 7}));
    }

    void noWindowEverStillOpensThePage()
    {
        const WindowWaitTimings specified;
        QCOMPARE(specified.maxAttempts, 40);
        QCOMPARE(specified.pause, std::chrono::milliseconds(300));

        const auto tyfi = make();
        tyfi->onStart();
        QTRY_COMPARE(reportedAttempts(), QStringList{QStringLiteral("40")});
        QCOMPARE(m_links->opened, QStringList{keyUrl(URLKeys::THANK_FOR_INSTALL_URL)});
    }

    void gatewayRunsTheOpening()
    {
        QWidget window;
        window.show();
        const auto tyfi = make(true);
        tyfi->onStart();
        QTRY_COMPARE(m_gateway->posted.size(), size_t(1));
        QCOMPARE(m_gateway->posted.front().name, std::string("THANK_FOR_INSTALL"));
        QCOMPARE(reportedAttempts(), QStringList{QStringLiteral("1")});
        QVERIFY(m_links->opened.isEmpty());
        m_gateway->flush();
        QCOMPARE(m_links->opened, QStringList{keyUrl(URLKeys::THANK_FOR_INSTALL_URL)});
    }

    void checkerDecidesAgainBeforeOpening()
    {
        QWidget window;
        window.show();
        const auto tyfi = make();
        int asked = 0;
        tyfi->setCustomNeedOpenChecker([&asked]() { return ++asked == 1; });
        tyfi->onStart();
        QTRY_COMPARE(reportedAttempts().size(), 1);
        QCOMPARE(asked, 2);
        QVERIFY(m_links->opened.isEmpty());

        // An empty checker gives the rule back: background launches open nothing.
        m_launchType->type = 4;
        tyfi->setCustomNeedOpenChecker({});
        tyfi->onStart();
        // A check that nothing comes: a wait begun by mistake would report within milliseconds.
        QTest::qWait(100);
        QCOMPARE(reportedAttempts().size(), 1);
    }

    void destroyedWhileWaiting()
    {
        // A pause of an hour: destruction must cut it short instead of sitting it out.
        auto tyfi = make(false, WindowWaitTimings{40, std::chrono::hours(1)});
        tyfi->onStart();
        {
            Watchdog watchdog("destroying a Tyfi whose waiter pauses");
            tyfi.reset();
        }
        // The stopped waiter's last report was posted before its thread ended: it has nobody to
        // reach.
        QCoreApplication::sendPostedEvents();
        QVERIFY(m_links->opened.isEmpty());
        QCOMPARE(reportedAttempts(), QStringList());
    }

    void nullArgumentsRaise()
    {
        const auto installer = std::make_shared<MemoryInstallerSettings>();
        QVERIFY_EXCEPTION_THROWN(Tyfi(nullptr, m_links, installer, m_product, m_launchType, nullptr),
                                 std::logic_error);
        QVERIFY_EXCEPTION_THROWN(Tyfi(m_customization, m_links, installer, m_product, nullptr, m_gateway),
                                 std::logic_error);
        Tyfi withoutGateway(m_customization, m_links, installer, m_product, m_launchType, nullptr);
    }
};

OSTREL_TEST_MAIN(TestTyfi)
#include "tst_tyfi.moc"
