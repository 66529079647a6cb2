// The installation records and the delayed update request.

#include "App/Application/Extensions/ApplicationRegistryUpdater/ApplicationRegistryUpdater.h"
#include "App/Application/Extensions/AutoUpdateRequester/AutoUpdateRequester.h"
#include "App/Application/Extensions/InstallerUpdater/InstallerUpdater.h"

#include "ExtensionFakes.h"
#include "TestEnvironment.h"

#include <QDir>

using namespace Ostrel;
using namespace Ostrel::App;
using namespace Ostrel::Test;

class TestUpdaters : public QObject
{
    Q_OBJECT

private slots:
    void registryPathEndsInOneSeparator()
    {
        const auto settings = std::make_shared<MemoryProductSettings>();
        ApplicationRegistryUpdater updater(settings);
        updater.onStart();
        const QString path = QString::fromStdString(settings->values.at("Path"));
        QVERIFY(path.endsWith(QDir::separator()));
        QVERIFY(!path.endsWith(QString(QDir::separator()) + QDir::separator()));
        QCOMPARE(QDir(path).canonicalPath(), QDir(QCoreApplication::applicationDirPath()).canonicalPath());
    }

    void installerRecordsWordSize()
    {
        const auto settings = std::make_shared<MemoryProductSettings>();
        InstallerUpdater updater(settings);
        updater.onStart();
        QCOMPARE(settings->values.at("ArchitectBits"), "x" + std::to_string(sizeof(void*) * 8));
    }

    void nullArgumentsRaise()
    {
        const auto customization = std::make_shared<ExtensionCustomization>();
        QVERIFY_EXCEPTION_THROWN(ApplicationRegistryUpdater(nullptr), std::logic_error);
        QVERIFY_EXCEPTION_THROWN(InstallerUpdater(nullptr), std::logic_error);
        QVERIFY_EXCEPTION_THROWN(AutoUpdateRequester(customization, nullptr), std::logic_error);
        QVERIFY_EXCEPTION_THROWN(AutoUpdateRequester(nullptr, std::make_shared<MemoryProductSettings>()),
                                 std::logic_error);
    }

    // The rows run side by side on a delay of a millisecond; each requester counts its own calls.
    void autoUpdateRequest()
    {
        struct Row
        {
            const char* name;
            const char* autoUpdate; // nullptr: absent
            int starts;
            bool callbackAfterStart;
            int expected;
        };
        const Row rows[] = {
            {"absent", nullptr, 1, false, 1},
            {"true", "true", 1, false, 1},
            {"false", "false", 1, false, 0},
            {"started twice", nullptr, 2, false, 2},
            {"callback set after the start", nullptr, 1, true, 1},
        };
        const std::chrono::milliseconds delay(1);
        const auto customization = std::make_shared<ExtensionCustomization>();
        std::vector<std::unique_ptr<AutoUpdateRequester>> requesters;
        std::vector<int> calls(std::size(rows), 0);
        for (size_t i = 0; i < std::size(rows); ++i) {
            const auto settings = std::make_shared<MemoryProductSettings>();
            if (rows[i].autoUpdate)
                settings->values["autoUpdate"] = rows[i].autoUpdate;
            requesters.push_back(std::make_unique<AutoUpdateRequester>(customization, settings));
            requesters.back()->setRequestDelay(delay);
            const auto count = [&calls, i]() { ++calls[i]; };
            if (!rows[i].callbackAfterStart)
                requesters.back()->setAutoUpdateRequestCallback(count);
            for (int start = 0; start < rows[i].starts; ++start)
                requesters.back()->onStart();
            if (rows[i].callbackAfterStart)
                requesters.back()->setAutoUpdateRequestCallback(count);
        }
        // A requester destroyed before the delay ends calls nothing.
        int callsOfDestroyed = 0;
        {
            AutoUpdateRequester gone(customization, std::make_shared<MemoryProductSettings>());
            gone.setRequestDelay(delay);
            gone.setAutoUpdateRequestCallback([&callsOfDestroyed]() { ++callsOfDestroyed; });
            gone.onStart();
        }
        // The request waits for its timer, never comes from onStart itself.
        QCOMPARE(calls, std::vector<int>(std::size(rows), 0));

        // A requester told to wait an hour is still waiting when the short ones are through.
        AutoUpdateRequester patient(customization, std::make_shared<MemoryProductSettings>());
        patient.setRequestDelay(std::chrono::hours(1));
        bool patientCalled = false;
        patient.setAutoUpdateRequestCallback([&patientCalled]() { patientCalled = true; });
        patient.onStart();

        // Timers of one delay fire in the order they were started: once the last one has, every
        // request the rows made has come.
        AutoUpdateRequester last(customization, std::make_shared<MemoryProductSettings>());
        last.setRequestDelay(delay);
        bool lastCalled = false;
        last.setAutoUpdateRequestCallback([&lastCalled]() { lastCalled = true; });
        last.onStart();
        QTRY_VERIFY(lastCalled);
        for (size_t i = 0; i < std::size(rows); ++i)
            QVERIFY2(calls[i] == rows[i].expected, rows[i].name);
        QCOMPARE(callsOfDestroyed, 0);
        QVERIFY(!patientCalled);
    }
};

OSTREL_TEST_MAIN(TestUpdaters)
#include "tst_updaters.moc"
