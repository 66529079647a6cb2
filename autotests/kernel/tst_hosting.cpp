// What a product sees while it wires the shell: a component it forgot is named in the log before
// the build fails, and the order in which it sets the components does not keep it from starting.

#include "App/Application/Application.h"
#include "App/Application/CreateDefaultUpdater.h"
#include "App/Application/LifetimeManager.h"
#include "App/Application/NagScreen/NagScreenEventHandler.h"
#include "App/Application/NagScreen/WebNagUrlGenerator.h"
#include "Interfaces/ILinksManager.h"
#include "Nag/IManager.h"

#include "FakeCustomization.h"
#include "FakeHardware.h"
#include "FakeLaunchType.h"
#include "FakeLookAndFeel.h"
#include "LogCapture.h"
#include "MemorySettings.h"
#include "NoQuitLifetime.h"
#include "TestEnvironment.h"

#include <algorithm>
#include <functional>
#include <stdexcept>
#include <vector>

using namespace Ostrel;
using namespace Ostrel::App;
using Ostrel::Test::app;

namespace {

// One component a product sets: `set(true)` puts a fresh one into the context, `set(false)` a null.
struct Component
{
    QString key;
    std::function<void(bool)> set;
};

template <class T, class Fake> Component component(const char* key)
{
    return {QString::fromLatin1(key),
            [](bool present) { app().set<T>(present ? std::make_shared<Fake>() : nullptr); }};
}

// In the order the product's documentation gives; the last two are never set here.
const std::vector<Component>& components()
{
    static const std::vector<Component> all{
        component<ICustomizationManager, Test::FakeCustomization>("customization"),
        component<IProductSettingsManager, Test::MemoryProductSettings>("product"),
        component<IMailSettingsManager, Test::MemoryMailSettings>("mail"),
        component<IUserSettingsManager, Test::MemoryUserSettings>("user"),
        component<IHardwareInfo, Test::FakeHardware>("hardware"),
        component<ILaunchTypeProcessor, Test::FakeLaunchType>("launchtype"),
        component<ILookAndFeelManager, Test::FakeLookAndFeel>("lookandfeel"),
        {QStringLiteral("links"), [](bool) { app().SetLinksManager(nullptr); }},
        {QStringLiteral("nags"), [](bool) { app().SetNagScreenManager(nullptr); }},
    };
    return all;
}

// Empties the context, then sets the components of `order` in that order.
void setComponents(const QStringList& order)
{
    for (const Component& each : components())
        each.set(false);
    for (const QString& key : order)
        std::find_if(components().begin(), components().end(), [&](const Component& c) {
            return c.key == key;
        })->set(true);
}

QStringList allBut(const QString& forgotten)
{
    QStringList keys;
    for (const Component& each : components())
        keys += each.key;
    keys.removeAll(forgotten);
    return keys;
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
        const auto row = [](const char* builder, const char* forgotten, const char* named) {
            QTest::addRow("%s without %s", builder, forgotten) << builder << forgotten << named;
        };
        row("links manager", "customization", "Ostrel::App::ICustomizationManager");
        row("links manager", "hardware", "Ostrel::App::IHardwareInfo");
        row("links manager", "lookandfeel", "Ostrel::App::ILookAndFeelManager");
        row("links manager", "mail", "Ostrel::App::IMailSettingsManager");
        row("links manager", "product", "Ostrel::App::IProductSettingsManager");
        row("links manager", "user", "Ostrel::App::IUserSettingsManager");
        row("links manager", "launchtype", "Ostrel::App::ILaunchTypeProcessor");
        row("request updater", "customization", "Ostrel::App::ICustomizationManager");
        row("request updater", "user", "Ostrel::App::IUserSettingsManager");
        row("request updater", "hardware", "Ostrel::App::IHardwareInfo");
        row("web nag URL", "links", "Ostrel::App::ILinksManager");
        row("nag tracking", "nags", "Ostrel::App::NagScreen::IManager");
    }

    void missingComponentIsNamed()
    {
        QFETCH(QString, builder);
        QFETCH(QString, forgotten);
        QFETCH(QString, named);
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
        setComponents(allBut(forgotten));

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
        QTest::newRow("launch type after the customization and settings") << allBut(QString());
        QStringList reversed = allBut(QString());
        std::reverse(reversed.begin(), reversed.end());
        QTest::newRow("launch type before the customization and settings") << reversed;
    }

    void componentsInAnyOrderStillStart()
    {
        QFETCH(QStringList, order);
        Test::LogCapture capture;
        setComponents(order);
        if (!m_lifetime->isStarted())
            m_lifetime->start();

        QVERIFY(m_lifetime->isStarted());
        QVERIFY(!app().GetUrl(HOMEPAGE_URL_menu).isEmpty());
        QVERIFY(createDefaultUpdater(app()));
        QVERIFY(capture.matching("needs the component ").empty());
    }

private:
    std::shared_ptr<LifetimeManager> m_lifetime;
};

int main(int argc, char** argv)
{
    return Test::execInApplication<HostingTest>(argc, argv);
}

#include "tst_hosting.moc"
