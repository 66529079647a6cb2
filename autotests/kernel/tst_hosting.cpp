// What a product sees while it wires the shell: a component it forgot is named in the log before
// the build fails, and the order in which it sets the components does not keep it from starting.

#include "App/Application/Application.h"
#include "App/Application/CreateDefaultUpdater.h"
#include "App/Application/LifetimeManager.h"
#include "App/Application/NagScreen/NagScreenEventHandler.h"
#include "App/Application/NagScreen/WebNagUrlGenerator.h"
#include "Interfaces/ICustomizationManager.h"
#include "Interfaces/IHardwareInfo.h"
#include "Interfaces/ILaunchTypeProcessor.h"
#include "Interfaces/ILinksManager.h"
#include "Interfaces/ILookAndFeelManager.h"
#include "Nag/IManager.h"

#include "FakeCustomization.h"
#include "FakeHardware.h"
#include "FakeLaunchType.h"
#include "FakeLookAndFeel.h"
#include "LogCapture.h"
#include "MemorySettings.h"
#include "TestEnvironment.h"

#include <functional>
#include <stdexcept>
#include <utility>
#include <vector>

using namespace Ostrel;
using namespace Ostrel::App;

namespace {

class NoQuitLifetime : public LifetimeManager
{
protected:
    void quitImpl() override {}
};

Application& app()
{
    return *static_cast<Application*>(QCoreApplication::instance());
}

// Each setter puts a fresh component of one kind into the context, as a product would; listed in
// the order the product's documentation gives.
using Setter = std::function<void()>;
const std::vector<std::pair<QString, Setter>>& setters()
{
    static const std::vector<std::pair<QString, Setter>> all{
        {QStringLiteral("customization"),
         [] { app().SetCustomizationManager(std::make_shared<Test::FakeCustomization>()); }},
        {QStringLiteral("hardware"),
         [] { app().set<IHardwareInfo>(std::make_shared<Test::FakeHardware>()); }},
        {QStringLiteral("lookandfeel"),
         [] { app().SetLookAndFeel(std::make_shared<Test::FakeLookAndFeel>()); }},
        {QStringLiteral("mail"),
         [] { app().set<IMailSettingsManager>(std::make_shared<Test::MemoryMailSettings>()); }},
        {QStringLiteral("product"),
         [] { app().set<IProductSettingsManager>(std::make_shared<Test::MemoryProductSettings>()); }},
        {QStringLiteral("user"),
         [] { app().set<IUserSettingsManager>(std::make_shared<Test::MemoryUserSettings>()); }},
        {QStringLiteral("launchtype"),
         [] { app().SetLaunchTypeProcessor(std::make_shared<Test::FakeLaunchType>()); }},
    };
    return all;
}

// A context with none of the product's components, as right after the application's construction.
void clearProductComponents()
{
    app().SetCustomizationManager(nullptr);
    app().set<IHardwareInfo>(nullptr);
    app().SetLookAndFeel(nullptr);
    app().set<IMailSettingsManager>(nullptr);
    app().set<IProductSettingsManager>(nullptr);
    app().set<IUserSettingsManager>(nullptr);
    app().SetLaunchTypeProcessor(nullptr);
    app().SetLinksManager(nullptr);
    app().SetNagScreenManager(nullptr);
}

} // namespace

class HostingTest : public QObject
{
    Q_OBJECT
public:
    explicit HostingTest(std::shared_ptr<LifetimeManager> lifetime) : m_lifetime(std::move(lifetime)) {}

private Q_SLOTS:
    void missingComponentIsNamed_data()
    {
        QTest::addColumn<QString>("builder");
        QTest::addColumn<QString>("forgotten");
        QTest::addColumn<QString>("named");

        const QString links = QStringLiteral("links manager");
        QTest::newRow("links manager, no customization") << links << "customization"
                                                         << "Ostrel::App::ICustomizationManager";
        QTest::newRow("links manager, no hardware info") << links << "hardware"
                                                         << "Ostrel::App::IHardwareInfo";
        QTest::newRow("links manager, no look and feel") << links << "lookandfeel"
                                                         << "Ostrel::App::ILookAndFeelManager";
        QTest::newRow("links manager, no mail settings") << links << "mail"
                                                         << "Ostrel::App::IMailSettingsManager";
        QTest::newRow("links manager, no product settings") << links << "product"
                                                            << "Ostrel::App::IProductSettingsManager";
        QTest::newRow("links manager, no user settings") << links << "user"
                                                         << "Ostrel::App::IUserSettingsManager";
        QTest::newRow("links manager, no launch type") << links << "launchtype"
                                                       << "Ostrel::App::ILaunchTypeProcessor";
        const QString updater = QStringLiteral("request updater");
        QTest::newRow("request updater, no customization") << updater << "customization"
                                                           << "Ostrel::App::ICustomizationManager";
        QTest::newRow("request updater, no user settings") << updater << "user"
                                                           << "Ostrel::App::IUserSettingsManager";
        QTest::newRow("request updater, no hardware info") << updater << "hardware"
                                                           << "Ostrel::App::IHardwareInfo";
        QTest::newRow("web nag URL, no links manager") << "web nag URL"
                                                       << ""
                                                       << "Ostrel::App::ILinksManager";
        QTest::newRow("nag tracking, no nag manager") << "nag tracking"
                                                      << ""
                                                      << "Ostrel::App::NagScreen::IManager";
    }

    void missingComponentIsNamed()
    {
        QFETCH(QString, builder);
        QFETCH(QString, forgotten);
        QFETCH(QString, named);

        clearProductComponents();
        for (const auto& [name, set] : setters()) {
            if (name != forgotten)
                set();
        }
        const std::map<QString, std::function<void()>> builds{
            {QStringLiteral("links manager"), [] { app().GetLinksManager(); }},
            {QStringLiteral("request updater"), [] { createDefaultUpdater(app()); }},
            {QStringLiteral("web nag URL"),
             [] {
                 NagScreen::WebNagUrlGenerator(app(), QStringLiteral("probe"))
                     .Generate(QStringLiteral("free"), QStringLiteral("app_start"), QStringLiteral("en_US"));
             }},
            {QStringLiteral("nag tracking"), [] { NagScreen::setupNagScreenEventHandler(app(), nullptr); }},
        };

        Test::LogCapture capture;
        // The error each builder always raised (NotNull's among them) is kept.
        QVERIFY_EXCEPTION_THROWN(builds.at(builder)(), std::logic_error);
        std::vector<Test::LogCapture::Line> lines;
        for (const auto& line : capture.lines()) {
            if (line.text.find(" needs the component ") != std::string::npos)
                lines.push_back(line);
        }
        QCOMPARE(lines.size(), std::size_t(1));
        QVERIFY2(QString::fromStdString(lines.front().text)
                     .contains(QStringLiteral(" needs the component ") + named + QLatin1Char(',')),
                 lines.front().text.c_str());
        QCOMPARE(lines.front().severity, google::GLOG_ERROR);
    }

    void componentsInAnyOrderStillStart_data()
    {
        QTest::addColumn<QStringList>("order");
        QTest::newRow("customization and settings before the launch type") << QStringList{
            "customization", "product", "mail", "user", "hardware", "lookandfeel", "launchtype"};
        QTest::newRow("launch type first") << QStringList{"launchtype", "lookandfeel", "hardware",     "user",
                                                          "mail",       "product",     "customization"};
        QTest::newRow("settings last") << QStringList{
            "customization", "launchtype", "lookandfeel", "hardware", "mail", "user", "product"};
    }

    void componentsInAnyOrderStillStart()
    {
        QFETCH(QStringList, order);
        clearProductComponents();
        Test::LogCapture capture;
        for (const QString& name : order) {
            for (const auto& [setterName, set] : setters()) {
                if (setterName == name)
                    set();
            }
        }
        if (!m_lifetime->isStarted())
            m_lifetime->start();

        QVERIFY(m_lifetime->isStarted());
        QVERIFY(app().GetLinksManager());
        QVERIFY(!app().GetUrl(HOMEPAGE_URL_menu).isEmpty());
        QVERIFY(createDefaultUpdater(app()));
        QVERIFY(capture.matching("needs the component ").empty());
    }

private:
    std::shared_ptr<LifetimeManager> m_lifetime;
};

int main(int argc, char** argv)
{
    Test::initTestEnvironment(argv[0]);
    auto lifetime = std::make_shared<NoQuitLifetime>();
    Application application(argc, argv, lifetime, Application::DISABLE_APP_MUTEX);
    HostingTest test(lifetime);
    return Test::exec(&test, argc, argv);
}

#include "tst_hosting.moc"
