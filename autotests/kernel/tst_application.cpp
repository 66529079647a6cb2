// The application object in a running process: what its construction sets up, the reactions to
// components (banner, partner override, links slot), the splash until the start, the log of what
// the user pressed.

#include "App/Application/Application.h"
#include "App/Application/ISplash.h"
#include "App/Application/LifetimeManager.h"
#include "Interfaces/ICustomizationManager.h"
#include "Interfaces/IGateway.h"
#include "Interfaces/ILaunchTypeProcessor.h"
#include "Interfaces/ILinksManager.h"
#include "Interfaces/IProductSettingsManager.h"
#include "Interfaces/LifetimeObserver.h"

#include "FakeCustomization.h"
#include "FakeLinks.h"
#include "LogCapture.h"
#include "MemorySettings.h"
#include "NoQuitLifetime.h"
#include "TestEnvironment.h"

#include <QAction>
#include <QPushButton>
#include <QRegularExpression>
#include <QShortcutEvent>

#include <map>

using namespace Ostrel;
using namespace Ostrel::App;
using Ostrel::Test::app;

namespace {

using MemorySettings = Ostrel::Test::MemoryProductSettings;

class FixedLaunchType : public ILaunchTypeProcessor
{
public:
    explicit FixedLaunchType(int type) : m_type(type) {}
    int GetLaunchType() const override { return m_type; }

private:
    int m_type;
};

class CountingSplash : public ISplash
{
public:
    void show() override {}
    void dismiss() override { ++dismissals; }
    int dismissals = 0;
};

using Links = Ostrel::Test::FakeLinks;

class SetterListener : public Core::ComponentSetterObserver
{
public:
    void onSet() override { ++calls; }
    int calls = 0;
};

} // namespace

class ApplicationTest : public QObject
{
    Q_OBJECT
public:
    explicit ApplicationTest(std::shared_ptr<ILifetimeManager> lifetime) : m_lifetime(std::move(lifetime)) {}

private Q_SLOTS:
    void constructionSetsTheKernelComponents()
    {
        QCOMPARE(QString::fromLatin1(app().metaObject()->className()),
                 QStringLiteral("Ostrel::App::Application"));
        QCOMPARE(app().get<ILifetimeManager>(), m_lifetime);
        QVERIFY(!QApplication::isEffectEnabled(Qt::UI_AnimateCombo));

        const auto gateway = app().GetExternalStimulusGateway();
        QVERIFY(gateway);
        bool ran = false;
        gateway->post({"probe", [&]() { ran = true; }});
        gateway->post({"empty", nullptr});
        QVERIFY(ran);
        QVERIFY(!gateway->isHolding());
    }

    // Must run before the start: the splash lives only until then.
    void splashIsDismissedWhenTheApplicationFirstBecomesActive()
    {
        auto splash = std::make_shared<CountingSplash>();
        app().SetSplash(splash);
        QCOMPARE(app().GetSplash(), std::shared_ptr<ISplash>(splash));

        QWidget window;
        window.show();
        window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        QTRY_COMPARE(splash->dismissals, 1);
        m_splash = splash;
    }

    void bannerIsLoggedInOrderEachTimeTheCustomizationChanges()
    {
        Test::LogCapture capture;
        app().SetProductVersionLines({"FFmpeg version: probe", "Product commit: 0123abc"});
        const auto customization = std::make_shared<Test::FakeCustomization>();
        app().SetCustomizationManager(customization);
        app().SetProductVersionLines({});

        QCOMPARE(QCoreApplication::applicationName(), QStringLiteral("Links Probe"));
        QCOMPARE(QCoreApplication::organizationName(), QStringLiteral("Probe Org"));
        const auto lines = capture.texts();
        QVERIFY2(lines.size() >= 7, std::to_string(lines.size()).c_str());
        QCOMPARE(QString::fromStdString(lines[0]),
                 QStringLiteral("Application started from ") + QCoreApplication::applicationFilePath());
        QCOMPARE(QString::fromStdString(lines[1]),
                 QStringLiteral("Product Version: ") + QCoreApplication::applicationVersion());
        QCOMPARE(lines[2], std::string("FFmpeg version: probe"));
        QCOMPARE(lines[3], std::string("Product commit: 0123abc"));
        QCOMPARE(lines[4], std::string("Shell version: " OSTREL_PROJECT_VERSION));
        QVERIFY2(QRegularExpression(QStringLiteral("^Shell commit: ([0-9a-f]{12}|unknown)$"))
                     .match(QString::fromStdString(lines[5]))
                     .hasMatch(),
                 lines[5].c_str());
        QVERIFY2(lines[6].find('\n') != std::string::npos, lines[6].c_str()); // the hardware lines
        for (const auto& line : capture.lines())
            QVERIFY2(line.severity == google::GLOG_INFO, line.text.c_str());

        capture.clear();
        app().SetCustomizationManager(customization); // the same object: no reaction
        QVERIFY(capture.texts().empty());

        FLAGS_v = 2;
        app().SetCustomizationManager(std::make_shared<Test::FakeCustomization>());
        FLAGS_v = 0;
        QCOMPARE(capture.matching("Verbose logging enabled. Level=2").size(), std::size_t(1));

        capture.clear();
        FLAGS_minloglevel = google::GLOG_WARNING;
        app().SetCustomizationManager(std::make_shared<Test::FakeCustomization>());
        FLAGS_minloglevel = google::GLOG_INFO;
        QVERIFY(capture.texts().empty());
    }

    // Rows: two products' organization and application names, and whether their names are the same.
    void appMutexNameIsTheProducts_data()
    {
        QTest::addColumn<QStringList>("product");
        QTest::addColumn<QStringList>("other");
        QTest::addColumn<bool>("same");
        const auto names = [](const char* organization, const char* application) {
            return QStringList{QString::fromUtf8(organization), QString::fromUtf8(application)};
        };
        QTest::newRow("same product") << names("Org", "Capture") << names("Org", "Capture") << true;
        QTest::newRow("other application") << names("Org", "Capture") << names("Org", "Recorder") << false;
        QTest::newRow("other organization") << names("Org", "Capture") << names("Other", "Capture") << false;
        QTest::newRow("names split otherwise") << names("Org", "Capture") << names("OrgC", "apture") << false;
    }

    // Two products on one machine must not take each other for a second instance.
    void appMutexNameIsTheProducts()
    {
        QFETCH(QStringList, product);
        QFETCH(QStringList, other);
        QFETCH(bool, same);

        const QStringList before{QCoreApplication::organizationName(), QCoreApplication::applicationName()};
        const auto nameFor = [](const QStringList& names) {
            QCoreApplication::setOrganizationName(names[0]);
            QCoreApplication::setApplicationName(names[1]);
            return Application::GetAppMutexName();
        };
        const bool equal = nameFor(product) == nameFor(other);
        nameFor(before);
        QCOMPARE(equal, same);
    }

    void partnerOverrideIsUsedOnce_data()
    {
        QTest::addColumn<int>("launchType");
        QTest::addColumn<QString>("override");        // "-" for no override key
        QTest::addColumn<QString>("expectedPartner"); // "-" for untouched
        QTest::addColumn<bool>("overrideRemains");

        QTest::newRow("no override") << 0 << "-"
                                     << "builtin partner" << false;
        QTest::newRow("override wins and is consumed") << 1 << "special"
                                                       << "special" << false;
        QTest::newRow("empty override is consumed") << 0 << ""
                                                    << "builtin partner" << false;
        QTest::newRow("background launch touches nothing") << 4 << "special"
                                                           << "-" << true;
    }

    void partnerOverrideIsUsedOnce()
    {
        QFETCH(int, launchType);
        QFETCH(QString, override);
        QFETCH(QString, expectedPartner);
        QFETCH(bool, overrideRemains);

        auto settings = std::make_shared<MemorySettings>();
        if (override != QLatin1String("-"))
            settings->values["PartnerName.OVERRIDE"] = override.toStdString();
        app().set<IProductSettingsManager>(settings);
        app().SetCustomizationManager(std::make_shared<Test::FakeCustomization>());
        app().SetLaunchTypeProcessor(std::make_shared<FixedLaunchType>(launchType));

        if (expectedPartner == QLatin1String("-"))
            QVERIFY(!settings->Has("PartnerName"));
        else
            QCOMPARE(QString::fromStdString(settings->GetString("PartnerName", "")), expectedPartner);
        QCOMPARE(settings->Has("PartnerName.OVERRIDE"), overrideRemains);
    }

    void launchTypeBeforeItsDependenciesIsReportedNotFatal()
    {
        Test::LogCapture capture;
        auto settings = app().get<IProductSettingsManager>();
        app().set<IProductSettingsManager>(nullptr);
        app().SetLaunchTypeProcessor(std::make_shared<FixedLaunchType>(0));
        QCOMPARE(capture.matching("launch type processor was set before").size(), std::size_t(1));
        app().set<IProductSettingsManager>(settings);
    }

    void linksManagerReachesItsSlot()
    {
        const auto setter = app().GetLinksManagerSetter();
        QVERIFY(setter);
        SetterListener listener;
        setter->RegisterEventHandler(&listener);
        auto links = std::make_shared<Links>();
        app().SetLinksManager(links);
        QCOMPARE(listener.calls, 1);
        QVERIFY(setter->IsSet());
        app().SetLinksManager(nullptr);
        QVERIFY(!setter->IsSet());
        setter->UnregisterEventHandler(&listener);
    }

    void daysPassedSinceTheFirstStart()
    {
        auto settings = std::make_shared<MemorySettings>();
        app().set<IProductSettingsManager>(settings);
        QCOMPARE(app().GetDaysPassed(), 0);
        settings->SetUInt("DateOfFirstStart", QDateTime::currentDateTime().addDays(-3).toTime_t());
        QCOMPARE(app().GetDaysPassed(), 3);
    }

    void startDismissesAgainAndDropsTheSplashController()
    {
        QVERIFY(m_splash);
        QObject* controller = nullptr;
        for (QObject* child : app().children()) {
            if (QByteArray(child->metaObject()->className()) == "Ostrel::App::SplashController")
                controller = child;
        }
        QVERIFY(controller);
        QSignalSpy destroyed(controller, &QObject::destroyed);
        // Active before the start, so that activation after it is a real one.
        QWidget window;
        window.show();
        window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        const int dismissalsBefore = m_splash->dismissals;

        // An observer registered by the host after construction hears the start after the
        // shell's own callbacks: the splash is already dismissed and released.
        struct Late : LifetimeObserver
        {
            void onStart() override { splashAtStart = app().GetSplash() != nullptr; }
            bool splashAtStart = true;
        } late;
        m_lifetime->RegisterEventHandler(&late);
        m_lifetime->start();
        m_lifetime->UnregisterEventHandler(&late);

        QCOMPARE(m_splash->dismissals, dismissalsBefore + 1);
        QVERIFY(!late.splashAtStart);
        QVERIFY(!app().GetSplash());
        app().SetSplash(std::make_shared<CountingSplash>());
        QVERIFY(!app().GetSplash());

        // After the start, becoming active no longer reaches the splash, even while the
        // controller still lives (its deletion is only posted).
        QCOMPARE(destroyed.count(), 0);
        QCOMPARE(QGuiApplication::applicationState(), Qt::ApplicationActive);
        QApplicationStateChangeEvent activated(Qt::ApplicationActive);
        QCoreApplication::sendEvent(qApp, &activated);
        QCOMPARE(m_splash->dismissals, dismissalsBefore + 1);
        QTRY_COMPARE(destroyed.count(), 1);
    }

    void userActionsAreLogged()
    {
        QWidget panel;
        panel.setObjectName(QStringLiteral("toolbarPanel"));
        auto* button = new QPushButton(QStringLiteral("Capture"), &panel);
        button->setObjectName(QStringLiteral("captureButton"));
        auto* plain = new QWidget(&panel);
        plain->setObjectName(QStringLiteral("plainWidget"));
        QPushButton orphan;
        orphan.setObjectName(QStringLiteral("orphanButton"));
        QAction action(QStringLiteral("Save"), &panel);
        action.setObjectName(QStringLiteral("saveAction"));
        action.setShortcut(QKeySequence(QStringLiteral("Ctrl+S")));
        panel.show();
        QVERIFY(QTest::qWaitForWindowExposed(&panel));

        Test::LogCapture capture;
        QTest::mousePress(button, Qt::LeftButton);
        QTest::mouseRelease(button, Qt::LeftButton);
        QTest::mousePress(plain, Qt::RightButton);
        QTest::mouseRelease(plain, Qt::RightButton);
        QTest::mousePress(&orphan, Qt::MiddleButton);
        QMouseEvent actionPress(QEvent::MouseButtonPress, QPointF(1, 1), Qt::LeftButton, Qt::LeftButton,
                                Qt::NoModifier);
        QCoreApplication::sendEvent(&action, &actionPress);
        QShortcutEvent actionShortcut(action.shortcut(), 1);
        QCoreApplication::sendEvent(&action, &actionShortcut);
        QShortcutEvent buttonShortcut(QKeySequence(QStringLiteral("Alt+C")), 2);
        QCoreApplication::sendEvent(button, &buttonShortcut);

        const auto lines = capture.matching("User action: ");
        const std::vector<std::string> expected{
            "User action: type=MouseButtonPress, objectName=captureButton, className=QPushButton, "
            "parentObjectName=toolbarPanel, parentClassName=QWidget, button: LeftButton",
            "User action: type=MouseButtonPress, objectName=orphanButton, className=QPushButton, "
            "parentObjectName=, parentClassName=, button: MiddleButton",
            "User action: type=MouseButtonPress, objectName=saveAction, className=QAction, "
            "parentObjectName=toolbarPanel, parentClassName=QWidget, button: LeftButton",
            "User action: type=Shortcut, objectName=saveAction, className=QAction, "
            "parentObjectName=toolbarPanel, parentClassName=QWidget, shortcut: Ctrl+S",
        };
        QCOMPARE(lines, expected);
    }

private:
    std::shared_ptr<ILifetimeManager> m_lifetime;
    std::shared_ptr<CountingSplash> m_splash;
};

int main(int argc, char** argv)
{
    return Test::execInApplication<ApplicationTest>(argc, argv);
}

#include "tst_application.moc"
