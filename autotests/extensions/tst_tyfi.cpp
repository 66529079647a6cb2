// The thank-you page: the wait for the product's window, the report, and which page opens.

#include "App/Application/Extensions/Tyfi/OpenWindowWaiter.h"
#include "App/Application/Extensions/Tyfi/Tyfi.h"
#include "Tracking/ApplicationTrackerFactory.h"

#include "ExtensionFakes.h"
#include "RecordingTracker.h"
#include "TestEnvironment.h"

#include <QElapsedTimer>
#include <QWidget>

using namespace Ostrel;
using namespace Ostrel::App;
using namespace Ostrel::Test;

namespace {
QString keyUrl(URLKeys key)
{
    return RecordingLinks().GetUrl(key);
}
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

    std::unique_ptr<Tyfi> make(bool withGateway = false)
    {
        return std::make_unique<Tyfi>(m_customization, m_links, std::make_shared<MemoryInstallerSettings>(), m_product,
                                      m_launchType, withGateway ? m_gateway : nullptr);
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

    void cleanup() { Tracking::ApplicationTrackerFactory::setApplicationTracker(nullptr); }

    void pageOnceTheWindowShows_data()
    {
        QTest::addColumn<int>("launchType");
        QTest::addColumn<QString>("pageType");
        QTest::addColumn<QString>("bundle");
        QTest::addColumn<bool>("waits");
        QTest::addColumn<QStringList>("opened");

        const QStringList none;
        QTest::newRow("first launch, thank you") << 1 << "thankyou" << "" << true
                                                 << QStringList{keyUrl(URLKeys::THANK_FOR_INSTALL_URL)};
        QTest::newRow("update, thank you again") << 2 << "thankyou" << "" << true
                                                 << QStringList{keyUrl(URLKeys::THANK_FOR_REINSTALL_URL)};
        QTest::newRow("buy now") << 1 << "buynow" << "" << true << QStringList{keyUrl(URLKeys::BUY_NOW_URL_firststart)};
        QTest::newRow("unknown page type waits, opens nothing") << 1 << "survey" << "" << true << none;
        QTest::newRow("background launch") << 4 << "thankyou" << "" << false << none;
        QTest::newRow("no page type") << 1 << "" << "" << false << none;
        QTest::newRow("part of a bundle") << 1 << "thankyou" << "suite" << false << none;
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
        const auto tyfi = make();
        tyfi->onStart();
        if (waits) {
            QTRY_COMPARE(reportedAttempts(), QStringList{QStringLiteral("1")});
        } else {
            QTest::qWait(700);
            QCOMPARE(reportedAttempts(), QStringList());
        }
        QCOMPARE(m_links->opened, opened);
    }

    void windowShownLaterEndsTheWait()
    {
        const auto tyfi = make();
        tyfi->onStart();
        QWidget window;
        QTimer::singleShot(1000, &window, &QWidget::show);
        QTRY_COMPARE_WITH_TIMEOUT(reportedAttempts().size(), 1, 5000);
        const int attempts = reportedAttempts().first().toInt();
        QVERIFY2(attempts >= 3 && attempts <= 6, qPrintable(reportedAttempts().first()));
        QCOMPARE(m_links->opened, QStringList{keyUrl(URLKeys::THANK_FOR_INSTALL_URL)});
    }

    void hiddenWindowDoesNotCount()
    {
        QWidget window;
        window.show();
        window.hide();
        OpenWindowWaiter waiter;
        QSignalSpy finished(&waiter, &OpenWindowWaiter::Finished);
        waiter.Start();
        QTest::qWait(1000);
        QCOMPARE(finished.count(), 0);
    }

    void noWindowEverStillOpensThePage()
    {
        QElapsedTimer clock;
        clock.start();
        const auto tyfi = make();
        tyfi->onStart();
        QTRY_COMPARE_WITH_TIMEOUT(reportedAttempts(), QStringList{QStringLiteral("40")}, 16000);
        QVERIFY2(clock.elapsed() >= 11500, qPrintable(QString::number(clock.elapsed())));
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
        QTest::qWait(500);
        QCOMPARE(reportedAttempts().size(), 1);
    }

    void destroyedWhileWaiting()
    {
        auto tyfi = make();
        tyfi->onStart();
        QTest::qWait(100);
        QElapsedTimer clock;
        clock.start();
        tyfi.reset();
        QVERIFY2(clock.elapsed() < 450, qPrintable(QString::number(clock.elapsed())));
        // The last report of the stopped waiter has nobody to reach.
        QTest::qWait(400);
        QVERIFY(m_links->opened.isEmpty());
        QCOMPARE(reportedAttempts(), QStringList());
    }

    void nullArgumentsRaise()
    {
        const auto installer = std::make_shared<MemoryInstallerSettings>();
        QVERIFY_EXCEPTION_THROWN(Tyfi(nullptr, m_links, installer, m_product, m_launchType, nullptr), std::logic_error);
        QVERIFY_EXCEPTION_THROWN(Tyfi(m_customization, m_links, installer, m_product, nullptr, m_gateway),
                                 std::logic_error);
        Tyfi withoutGateway(m_customization, m_links, installer, m_product, m_launchType, nullptr);
    }
};

OSTREL_TEST_MAIN(TestTyfi)
#include "tst_tyfi.moc"
