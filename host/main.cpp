// The sample host: how a product wires the shell. It follows the start sequence step by step;
// each step says what a product would put there.

#include "BrowserMenu.h"
#include "ExtensionsWiring.h"
#include "HostSplash.h"
#include "LogFile.h"
#include "MainWindow.h"
#include "NagWiring.h"
#include "TestingWiring.h"

#include "App/Application/Application.h"
#include "App/Application/LifetimeManager.h"
#include "App/Application/PreferredBrowser.h"
#include "App/Application/StartupEnvironment.h"
#include "Core/ApplicationSettingsManager.h"
#include "Core/CustomizationManager.h"
#include "Core/HardwareInfo.h"
#include "Core/InstallerSettingsManager.h"
#include "Core/LaunchTypeProcessor.h"
#include "Core/LinksManager.h"
#include "Core/MailSettingsManager.h"
#include "Core/ProductSettingsManager.h"
#include "Core/UserSettingsManager.h"
#include "Foundation/AppendFile.h"
#include "Foundation/MaskedLogging.h"
#include "Foundation/UserOnlyFiles.h"
#include "Foundation/Utf8.h"
#include "Http/HttpClient.h"
#include "Interfaces/LifetimeObserver.h"
#include "Ipc/LocalSocketProtocol.h"
#include "QtUtil/ApplicationVisibleVersion.h"
#include "QtUtil/QtMessageRouting.h"
#include "Tracking/ApplicationTrackerFactory.h"
#include "Tracking/GeneralOstrelTracker.h"

#include <glog/logging.h>

#include <QCommandLineParser>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QMenu>
#include <QMessageBox>
#include <QStandardPaths>
#include <QTimer>

#include <cstdio>
#include <cstring>
#include <ctime>
#include <string>

using namespace Ostrel;
using namespace Ostrel::App;

namespace {

// Sends the start and the quit to tracking, like a product's own observers would.
class TrackingLifetimeObserver : public LifetimeObserver
{
public:
    void onStart() override { send("APP_START"); }
    void onQuit() override { send("APP_QUIT"); }

private:
    static void send(const std::string& event)
    {
        if (const auto tracker = Tracking::ApplicationTrackerFactory::getApplicationTracker())
            tracker->sendEvent(event,
                               {{"VERSION", Util::QStringToUtf8(QCoreApplication::applicationVersion())}});
    }
};

// glog writes one file, appended across runs, in the product's data folder; warnings and errors
// also reach standard error. Until this runs, everything goes to standard error.
QString startLogFile(const CustomizationManager& customization)
{
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) +
                           QLatin1Char('/') + Util::Utf8ToQString(customization.GetOrganizationName()) +
                           QLatin1Char('/') + Util::Utf8ToQString(customization.GetApplicationName()) +
                           QStringLiteral("/logs");
    if (!Core::UserOnlyFiles::makeFolder(folder)) {
        LOG(WARNING) << "Cannot create the log folder " << Util::QStringToUtf8(folder)
                     << ", logging to standard error";
        Core::MaskedLogging::setConsoleThreshold(google::GLOG_INFO);
        return QStringLiteral("<standard error>");
    }
    QString file = folder + QStringLiteral("/ostrel-host.log");
    // Created user-only before anything else opens it; glog creates the others with logfile_mode.
    Core::UserOnlyFiles::prepareFile(file);
    bool claimed = claimLogFile(file);
    if (claimed && QFileInfo(file).size() > Core::AppendFile::defaultSizeCap()) {
        // glog only starts a new file past max_log_size, and appends to the same name: the cap
        // is kept here, once a start, as for the tracking file. The claim went with the old file.
        QFile::remove(file + QStringLiteral(".1"));
        QFile::rename(file, file + QStringLiteral(".1"));
        Core::UserOnlyFiles::prepareFile(file);
        claimed = claimLogFile(file);
    }
    if (!claimed)
        file = folder + QStringLiteral("/ostrel-host.%1.log").arg(QCoreApplication::applicationPid());
    FLAGS_timestamp_in_logfile_name = false;
    Core::MaskedLogging::setConsoleThreshold(google::GLOG_WARNING);
    // The log is the user's alone, starts afresh past 10 MB, and stops rather than fails when
    // the disk is full.
    FLAGS_logfile_mode = 0600;
    FLAGS_max_log_size = 10;
    FLAGS_stop_logging_if_full_disk = true;
    google::SetLogDestination(google::GLOG_INFO, Util::QStringToUtf8(file).c_str());
    for (const google::LogSeverity severity : {google::GLOG_WARNING, google::GLOG_ERROR, google::GLOG_FATAL})
        google::SetLogDestination(severity, "");
    return file;
}

struct HostOptions
{
    QCommandLineOption quitAfter{QStringLiteral("quit-after"),
                                 QStringLiteral("Quit by itself MS milliseconds after the start."),
                                 QStringLiteral("MS")};
    QCommandLineOption holdStart{QStringLiteral("hold-start"),
                                 QStringLiteral("Wait MS milliseconds before the start, as a slow start-up "
                                                "would; the splash stays up meanwhile."),
                                 QStringLiteral("MS")};
};

HostOptions addHostOptions(QCommandLineParser& parser)
{
    HostOptions options;
    parser.setApplicationDescription(QStringLiteral("Sample host of the Ostrel application shell"));
    parser.addHelpOption();
    parser.addVersionOption();
    parser.addOption(options.quitAfter);
    parser.addOption(options.holdStart);
    NagWiring::addOptions(parser);
    return options;
}

// With --help or --version the host prints and ends (status 0) on a core application alone, so
// that it answers on a machine without a display; -1 when neither is asked for.
int answerWithoutDisplay(int argc, char** argv)
{
    const auto asked = [&](const char* name) {
        for (int i = 1; i < argc; ++i) {
            if (std::strcmp(argv[i], name) == 0)
                return true;
        }
        return false;
    };
    const bool help = asked("--help") || asked("-h") || asked("-?");
    const bool version = asked("--version") || asked("-v");
    if (!help && !version)
        return -1;
    QCoreApplication core(argc, argv);
    FLAGS_minloglevel = google::GLOG_WARNING; // the customization's banner is no answer
    const CustomizationManager customization(QString(), QStringLiteral(":/host/CaptureDeskCustom.ini"));
    QCoreApplication::setApplicationName(Util::Utf8ToQString(customization.GetApplicationName()));
    QCoreApplication::setApplicationVersion(
        Util::GenerateApplicationVisibleVersion(customization.GetVersion()));
    QCommandLineParser parser;
    addHostOptions(parser);
    if (help)
        std::fputs(qPrintable(parser.helpText()), stdout);
    else
        std::printf("%s %s\n", qPrintable(QCoreApplication::applicationName()),
                    qPrintable(QCoreApplication::applicationVersion()));
    return 0;
}

} // namespace

int main(int argc, char** argv)
{
    // Standard error until the log file is known, so that nothing lands in glog's default folder.
    FLAGS_logtostderr = true;
    google::InitGoogleLogging(argv[0]); // GLOG_v in the environment sets the verbose level
    // From here on every line, to the file and to standard error, has the user's data masked.
    Core::MaskedLogging::install();

    // Each stage of the start is timed; GLOG_v=1 shows where a slow start spends its time.
    QElapsedTimer stageClock;
    stageClock.start();
    std::clock_t stageCpu = std::clock();
    const auto stage = [&stageClock, &stageCpu](const char* name) {
        const std::clock_t cpu = std::clock();
        VLOG(1) << "Start stage " << name << ": " << stageClock.restart() << " ms, CPU "
                << (cpu - stageCpu) * 1000 / CLOCKS_PER_SEC << " ms";
        stageCpu = cpu;
    };

    // --help and --version answer before anything needs a display.
    if (const int status = answerWithoutDisplay(argc, argv); status >= 0)
        return status;

    // 1. Before any Qt object: the DPI policy.
    HighDpiFix();

    // 2. The product's names, then the lifetime manager and the application object. The application
    //    names its lock after the names as they stand here (without them, after the executable), so
    //    that the product's other programs find it; the customization (step 3) names it the same.
    QCoreApplication::setOrganizationName(QStringLiteral("Ostrel"));
    QCoreApplication::setApplicationName(QStringLiteral("Ostrel Host"));
    const auto lifetime = std::make_shared<LifetimeManager>();
    Application app(argc, argv, lifetime);
    Util::InstallQtMessageRouting();
    // The shell's test options act from here on (the SSL choice before any URL exists).
    const auto testing = TestingWiring::create(lifetime);
    if (!testing)
        return 2;
    stage("application");

    QCommandLineParser parser;
    const HostOptions options = addHostOptions(parser);
    // The shell's own options (test options) are read by the shell; unknown ones are not an error here.
    parser.parse(QCoreApplication::arguments());
    const QCommandLineOption& quitAfter = options.quitAfter;
    const QCommandLineOption& holdStart = options.holdStart;
    const auto milliseconds = [&](const QCommandLineOption& option, int* value) {
        if (!parser.isSet(option))
            return true;
        bool valid = false;
        *value = parser.value(option).toInt(&valid);
        if (valid && *value >= 0)
            return true;
        std::fprintf(stderr, "ostrel-host: --%s takes a number of milliseconds\n",
                     qPrintable(option.names().first()));
        return false;
    };
    int quitAfterMs = -1;
    int holdStartMs = 0;
    if (!milliseconds(quitAfter, &quitAfterMs) || !milliseconds(holdStart, &holdStartMs))
        return 2;

    // 3. The components: the customization first (it names the application and logs the banner),
    //    then the settings, and the launch type processor after the settings it reads.
    const auto customization =
        std::make_shared<CustomizationManager>(QString(), QStringLiteral(":/host/CaptureDeskCustom.ini"));
    const QString logFile = startLogFile(*customization);
    const QString product =
        Util::Utf8ToQString(customization->GetOrganizationName() + "/" + customization->GetApplicationName());
    const auto protocol = std::make_shared<LocalSocketProtocol>(product);
    if (NagWiring::handOffToRunningInstance(parser, *protocol, product))
        return 0;
    stage("log and hand-off");

    const auto splash =
        std::make_shared<HostSplash>(Util::Utf8ToQString(customization->GetPresentableName()));
    splash->show();
    app.SetSplash(splash);
    stage("splash");

    // The product's own lines of the banner, which setting the customization logs.
    app.SetProductVersionLines({std::string("FFmpeg version: ") + OSTREL_FFMPEG_VERSION});
    app.SetCustomizationManager(customization);
    const auto tracker = std::make_shared<Tracking::GeneralOstrelTracker>();
    Tracking::ApplicationTrackerFactory::setApplicationTracker(tracker);
    app.set<Tracking::GeneralOstrelTracker>(tracker);

    const auto productSettings = std::make_shared<ProductSettingsManager>();
    const auto installerSettings = std::make_shared<InstallerSettingsManager>();
    app.set<IApplicationSettingsManager>(std::make_shared<ApplicationSettingsManager>());
    app.set<IProductSettingsManager>(productSettings);
    app.set<IInstallerSettingsManager>(installerSettings);
    app.set<IUserSettingsManager>(std::make_shared<UserSettingsManager>());
    app.set<IMailSettingsManager>(std::make_shared<MailSettingsManager>());
    app.set<IHardwareInfo>(std::make_shared<HardwareInfo>());
    app.SetLaunchTypeProcessor(std::make_shared<LaunchTypeProcessor>(productSettings, installerSettings,
                                                                     QCoreApplication::arguments()));
    stage("components");

    // 4. Nags and test options join here as the product adds them. A nag's e-mail form subscribes
    //    through the application's HTTP client.
    app.set<Networking::IHttpClient>(std::make_shared<Networking::HttpClient>());
    NagWiring nags(app, parser, protocol, productSettings);
    TrackingLifetimeObserver trackingObserver;
    lifetime->RegisterEventHandler(&trackingObserver);
    stage("nags");

    // 5. The start: observers hear it, the splash goes, the one-shot callbacks run once. The main
    //    window appears with it.
    MainWindow window(app);
    nags.addMenu(*window.menuBar());
    stage("window");
    // Links (the look and feel, for their locale, came with the window): they open in the preferred
    // browser through the URL handler that the browser installs for the process.
    PreferredBrowser preferredBrowser(app.GetLookAndFeel(), productSettings, installerSettings);
    if (auto* optionsMenu = window.findChild<QMenu*>(QStringLiteral("optionsMenu")))
        addBrowserMenu(*optionsMenu, preferredBrowser, productSettings);
    app.SetLinksManager(std::make_shared<LinksManager>(
        customization, app.get<IHardwareInfo>(), app.GetLookAndFeel(), app.GetMailSettingsManager(),
        productSettings, app.get<IUserSettingsManager>(), app.GetLaunchTypeProcessor(), nullptr,
        installerSettings));
    // The start-up extensions run once, right after the start, and live for the whole run.
    ExtensionsWiring extensions(app, *lifetime);
    testing->connect(app);
    stage("links and extensions");
    // --quit-after is armed before the start runs: a box opened during the start waits in a loop of
    // its own, and without a display nobody answers it. If the time comes while the start is still
    // running, open message boxes are answered as Escape would (the code that asked takes its cancel
    // path) and the quit waits for the start to return, since the test harness's walks run inside
    // it and their nag dialogs must not be cut short.
    bool startReturned = false;
    bool quitDue = false;
    const auto quitNow = [&]() {
        if (startReturned) {
            lifetime->tryToQuit();
            return;
        }
        quitDue = true;
        for (QWidget* widget : QApplication::topLevelWidgets()) {
            if (auto* box = qobject_cast<QMessageBox*>(widget); box && box->isVisible())
                box->reject();
        }
    };
    const auto startNow = [&]() {
        if (quitAfterMs >= 0)
            QTimer::singleShot(quitAfterMs, &app, quitNow);
        window.show();
        stage("show");
        lifetime->start();
        stage("start callbacks");
        nags.showAfterStart(extensions.questions());
        startReturned = true;
        if (quitDue)
            QTimer::singleShot(0, &app, quitNow);
    };
    if (holdStartMs > 0)
        QTimer::singleShot(holdStartMs, &app, startNow);
    else
        startNow();

    // 6. The event loop.
    const int status = QApplication::exec();
    lifetime->UnregisterEventHandler(&trackingObserver);

    LOG(INFO) << "Event loop ended with status " << status;
    std::fputs(qPrintable(testing->outputSummary(app)), stdout);
    std::printf("Log: %s\nTracking: %s\n", qPrintable(QDir::toNativeSeparators(logFile)),
                qPrintable(QDir::toNativeSeparators(tracker->filePath())));
    return status;
}
