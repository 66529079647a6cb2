// A nag asked for by another process: carried by the application from the inter-process
// component to the nag manager, whichever of the two arrives first; only a nag the product could
// show anyway, and one at a time.

#include "App/Application/Application.h"
#include "App/Application/LifetimeManager.h"
#include "Ipc/IPCBaseProtocol.h"
#include "Nag/IManager.h"

#include "LogCapture.h"
#include "TestEnvironment.h"

#include <functional>

using namespace Ostrel::App;
using namespace Ostrel::App::NagScreen;

namespace {

class RecordingManager : public IManager
{
public:
    QStringList added; // mode|action|url
    QStringList shown;
    // Runs inside ShowNag, as the nested loop of a modal nag would.
    std::function<void()> whileShown;
    int depth = 0;
    int deepest = 0;
    void AddObserver(IManagerObserver*) override {}
    void RemoveObserver(IManagerObserver*) override {}
    void AddNag(const QString& mode, const QString& action, const QUrl& url, const std::string& id,
                const std::string& name, int flags) override
    {
        QVERIFY(id.empty() && name.empty() && flags == 0);
        added << mode + QLatin1Char('|') + action + QLatin1Char('|') + url.toString();
    }
    void ReloadNags(const std::string&) override {}
    void OverrideNagPath(const QString&, const QString&) override {}
    bool IsNagAvailable(const QString&) override { return true; }
    bool IsNagDisabled(const QString&) override { return false; }
    int ShowNag(const QString& action) override
    {
        shown << action;
        deepest = std::max(deepest, ++depth);
        if (const auto run = std::exchange(whileShown, nullptr))
            run();
        --depth;
        return 1;
    }
    std::shared_ptr<NagHashSetter> GetNagHashSetter() override { return nullptr; }
    void SetShowStrategy(const std::shared_ptr<IShowStrategy>&) override {}
    std::shared_ptr<IShowStrategy> GetShowStrategy() const override { return nullptr; }
    void SetActionStrategy(const std::shared_ptr<IActionStrategy>&) override {}
    std::shared_ptr<IActionStrategy> GetActionStrategy() const override { return nullptr; }
    std::shared_ptr<const NagConfig> GetNagConfig() const override { return nullptr; }
    QString GetAppMode() const override { return QStringLiteral("trial"); }
    std::shared_ptr<IContentFactory> GetContentFactory() const override { return nullptr; }
};

} // namespace

class OnRequestTest : public QObject
{
    Q_OBJECT
public:
    explicit OnRequestTest(Application& application) : m_app(application) {}

private:
    Application& m_app;
    std::shared_ptr<IPCBaseProtocol> m_protocol;

    void request(const QString& url) { Q_EMIT m_protocol->OnOpenNagReceived(url); }

private Q_SLOTS:
    void init()
    {
        m_app.SetNagScreenManager(nullptr);
        m_protocol = std::make_shared<IPCBaseProtocol>();
        m_app.set<IPCBaseProtocol>(m_protocol);
        request(QString()); // no request of an earlier test is replayed
    }

    void aRequestReachesTheManagerDecoded()
    {
        const auto manager = std::make_shared<RecordingManager>();
        m_app.SetNagScreenManager(manager);
        request(QStringLiteral("https://msg.ostrel.com/promo%3Fid%3D7"));
        QCOMPARE(manager->added,
                 QStringList{QStringLiteral("trial|open_nag|https://msg.ostrel.com/promo?id=7")});
        QCOMPARE(manager->shown, QStringList{QStringLiteral("open_nag")});
    }

    void anEarlyRequestWaitsAndEveryLaterManagerReplaysIt()
    {
        request(QStringLiteral("https://msg.ostrel.com/first"));
        request(QStringLiteral("https://msg.ostrel.com/second"));
        const auto manager = std::make_shared<RecordingManager>();
        m_app.SetNagScreenManager(manager);
        QCOMPARE(manager->added, QStringList{QStringLiteral("trial|open_nag|https://msg.ostrel.com/second")});
        QCOMPARE(manager->shown.size(), 1);
        const auto later = std::make_shared<RecordingManager>();
        m_app.SetNagScreenManager(later);
        QCOMPARE(later->shown.size(), 1);
    }

    void anEmptyRequestReplacesTheWaitingOne()
    {
        request(QStringLiteral("https://msg.ostrel.com/waiting"));
        request(QString());
        const auto manager = std::make_shared<RecordingManager>();
        m_app.SetNagScreenManager(manager);
        QVERIFY(manager->shown.isEmpty());
    }

    void aReplacedProtocolStillReaches()
    {
        const auto manager = std::make_shared<RecordingManager>();
        m_app.SetNagScreenManager(manager);
        const auto replacement = std::make_shared<IPCBaseProtocol>();
        m_app.set<IPCBaseProtocol>(replacement);
        Q_EMIT replacement->OnOpenNagReceived(QStringLiteral("https://msg.ostrel.com/x"));
        QCOMPARE(manager->shown.size(), 1);
    }

    void aRequestForWhatTheProductWouldNotShowLoadsNothing()
    {
        const auto manager = std::make_shared<RecordingManager>();
        m_app.SetNagScreenManager(manager);
        Ostrel::Test::LogCapture log;
        request(QStringLiteral("file:///tmp/evil/main.qml"));
        QVERIFY(manager->added.isEmpty());
        QVERIFY(manager->shown.isEmpty());
        QCOMPARE(log.matching("Nag request refused").size(), std::size_t(1));
        QCOMPARE(log.matching("file:///tmp/evil/main.qml").size(), std::size_t(1));
        // The refusal quotes the request, without the user's data.
        request(QStringLiteral("https://evil.example/n/jo%40x.example/?name=Don%20Quixote"));
        QCOMPARE(log.matching("https://evil.example/n/***/?name=***\"").size(), std::size_t(1));
    }

    void requestsDuringANagWaitAndOnlyTheLatestFollows()
    {
        const auto manager = std::make_shared<RecordingManager>();
        m_app.SetNagScreenManager(manager);
        manager->whileShown = [this]() {
            for (int i = 1; i <= 3; ++i)
                request(QStringLiteral("https://msg.ostrel.com/burst/%1").arg(i));
        };
        request(QStringLiteral("https://msg.ostrel.com/first"));
        QCOMPARE(manager->shown.size(), 1);
        QTRY_COMPARE(manager->shown.size(), 2);
        QCOMPARE(manager->deepest, 1);
        QCOMPARE(manager->added.last(), QStringLiteral("trial|open_nag|https://msg.ostrel.com/burst/3"));
        // Nothing else waits: a fixed wait, since what is checked is that nothing more happens.
        QTest::qWait(50);
        QCOMPARE(manager->shown.size(), 2);
    }

    void cleanupTestCase()
    {
        request(QString()); // leaves no request behind for the application's last moments
        m_app.SetNagScreenManager(nullptr);
    }
};

int main(int argc, char** argv)
{
    Ostrel::Test::initTestEnvironment(argv[0]);
    Application application(argc, argv, std::make_shared<LifetimeManager>(), Application::DISABLE_APP_MUTEX);
    OnRequestTest test(application);
    return Ostrel::Test::exec(&test, argc, argv);
}

#include "tst_onrequest.moc"
