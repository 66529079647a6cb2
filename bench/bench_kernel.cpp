// The kernel's two hot paths: the event guard that every event passes, and a component fetch.
//
//   build/bin/bench_kernel                      all of them
//   build/bin/bench_kernel --benchmark_filter=Notify
//
// BM_NotifyRatio runs the shell's notify and QApplication's own on the same events in alternating
// batches of one run and reports their ratio ("ratio" counter; 1.00 = no cost): press:0 with
// non-input events only, press:1 with a logged press on a button among them. The log goes to a
// file, as in the host, so that a press costs what it costs in a product.
//
//   valgrind --tool=callgrind --instr-atstart=no build/bin/bench_kernel --count-instructions
//
// counts the instructions of fixed batches of non-input events through each side instead: the
// sink's events ("shell", "qapplication": the dispatch alone) and a live window's ("live-shell",
// "live-qapplication"), each a callgrind dump that scripts/bench.sh reads. A count that a busy
// machine cannot move, where the time ratio moves by several percent.

#include "App/Application/Application.h"
#include "App/Application/DirectCallGateway.h"
#include "App/Application/LifetimeManager.h"
#include "Core/ApplicationSettingsManager.h"
#include "Core/CustomizationManager.h"
#include "Core/HardwareInfo.h"
#include "Core/InstallerSettingsManager.h"
#include "Core/MailSettingsManager.h"
#include "Core/ProductSettingsManager.h"
#include "Core/UserSettingsManager.h"
#include "Interfaces/IAccountController.h"
#include "Interfaces/ICustomizationManager.h"
#include "Interfaces/IGateway.h"
#include "Interfaces/IHardwareInfo.h"
#include "Interfaces/IHttpClient.h"
#include "Interfaces/IIdleManager.h"
#include "Interfaces/IInstallerSettingsManager.h"
#include "Interfaces/IInternetConnectionChecker.h"
#include "Interfaces/ILaunchTypeProcessor.h"
#include "Interfaces/ILinksManager.h"
#include "Interfaces/ILookAndFeelManager.h"
#include "Interfaces/IMailSettingsManager.h"
#include "Interfaces/IMessageBroker.h"
#include "Interfaces/IPartnerTracking.h"
#include "Interfaces/IProductSettingsManager.h"
#include "Interfaces/IUserSettingsManager.h"
#include "Ipc/IPCBaseProtocol.h"
#include "Nag/IManager.h"
#include "Tracking/GeneralOstrelTracker.h"

#include "CpuClock.h"

#include <benchmark/benchmark.h>
#include <glog/logging.h>
#include <valgrind/callgrind.h>

#include <QMouseEvent>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTimer>
#include <QTimerEvent>
#include <QVBoxLayout>
#include <QWidget>
#include <QWindow>

#include <chrono>
#include <cstdio>
#include <cstring>

using namespace Ostrel;
using namespace Ostrel::App;

namespace {

// A receiver that accepts every event; the cost measured is the dispatch, not the handling.
class Sink : public QObject
{
public:
    bool event(QEvent*) override { return true; }
};

// Mostly non-input events, with a press on a button now and then, as in a live application.
struct EventMix
{
    Sink sink;
    QPushButton button;
    QEvent update{QEvent::UpdateRequest};
    QTimerEvent timer{1};
    QEvent metaCall{QEvent::User};
    QMouseEvent press{QEvent::MouseButtonPress, QPointF(1, 1), Qt::LeftButton, Qt::LeftButton,
                      Qt::NoModifier};

    bool withPress = true;

    template <class Dispatch> void run(Dispatch&& dispatch)
    {
        for (int i = 0; i < 31; ++i) {
            dispatch(&sink, &update);
            dispatch(&sink, &timer);
            dispatch(&sink, &metaCall);
        }
        if (withPress)
            dispatch(&button, &press);
    }
};

// The non-input events of a live window, each reaching a receiver that does its usual work: a
// running timer's tick reaching its connected slot, a shown widget's repaint (a filled background,
// no text, so no font of the machine is involved), and a relayout of a widget with a layout. What
// the guard costs a product is read on these; EventMix's sink, which does nothing at all, shows
// the dispatch alone.
struct LiveMix
{
    QTimer timer;
    int ticks = 0;
    QWidget window;
    QWidget panel;
    QTimerEvent tick{0};
    QEvent updateRequest{QEvent::UpdateRequest};
    QEvent layoutRequest{QEvent::LayoutRequest};

    LiveMix()
    {
        QObject::connect(&timer, &QTimer::timeout, [this]() { ++ticks; });
        timer.start(3600 * 1000);
        tick = QTimerEvent(timer.timerId());
        window.resize(64, 48);
        window.setAutoFillBackground(true);
        window.show();
        // Painted only once the platform shows it.
        for (int i = 0; i < 1000 && !(window.windowHandle() && window.windowHandle()->isExposed()); ++i)
            QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
        auto* layout = new QVBoxLayout(&panel);
        for (int i = 0; i < 3; ++i)
            layout->addWidget(new QWidget(&panel));
    }

    template <class Dispatch> void run(Dispatch&& dispatch)
    {
        for (int i = 0; i < 10; ++i) {
            dispatch(&timer, &tick);
            window.update();
            dispatch(&window, &updateRequest);
            panel.layout()->invalidate();
            dispatch(&panel, &layoutRequest);
        }
    }
};

Application& app()
{
    return *static_cast<Application*>(QCoreApplication::instance());
}

bool shellNotify(QObject* receiver, QEvent* event)
{
    return static_cast<QCoreApplication&>(app()).notify(receiver, event);
}

bool qtNotifyDirect(QObject* receiver, QEvent* event)
{
    return app().QApplication::notify(receiver, event);
}

// Qt reaches notify() through a virtual call. The shell's side pays that call itself; QApplication's
// side is reached through a pointer the compiler can't see through, so that both pay one indirect
// call and the ratio shows only what the guard adds.
bool (*volatile qtNotifyPointer)(QObject*, QEvent*) = qtNotifyDirect;

bool qtNotify(QObject* receiver, QEvent* event)
{
    return qtNotifyPointer(receiver, event);
}

void BM_NotifyShell(benchmark::State& state)
{
    EventMix mix;
    for (auto _ : state)
        mix.run(shellNotify);
    state.SetItemsProcessed(state.iterations() * 94);
}
BENCHMARK(BM_NotifyShell);

void BM_NotifyQApplication(benchmark::State& state)
{
    EventMix mix;
    for (auto _ : state)
        mix.run(qtNotify);
    state.SetItemsProcessed(state.iterations() * 94);
}
BENCHMARK(BM_NotifyQApplication);

// state.range(0): 1 with a press on a button in every 94 events, 0 with non-input events only.
void BM_NotifyRatio(benchmark::State& state)
{
    // This thread's CPU time: a batch preempted by another process, or run while a thread of this
    // one works (the log's), would otherwise be charged with that time.
    using Clock = ThreadCpuClock;
    EventMix mix;
    mix.withPress = state.range(0) != 0;
    Clock::duration shell{}, qt{};
    const auto batch = [&mix](bool (*dispatch)(QObject*, QEvent*)) {
        const auto start = Clock::now();
        for (int i = 0; i < 50; ++i)
            mix.run(dispatch);
        return Clock::now() - start;
    };
    bool qtFirst = true;
    for (auto _ : state) {
        // Alternating batches, so that drift of the machine hits both sides alike, and which side
        // goes first alternates too (the second batch finds caches warmed by the first).
        if (qtFirst) {
            qt += batch(qtNotify);
            shell += batch(shellNotify);
        } else {
            shell += batch(shellNotify);
            qt += batch(qtNotify);
        }
        qtFirst = !qtFirst;
    }
    state.counters["ratio"] = qt.count() ? double(shell.count()) / double(qt.count()) : 0.0;
}
BENCHMARK(BM_NotifyRatio)->ArgName("press")->Arg(0)->Arg(1)->Iterations(400);

// A component that only occupies its node: the fetch never looks inside, so any non-null pointer
// will do, whatever the interface asks of an implementation.
template <class T> std::shared_ptr<T> placeholder()
{
    static char storage alignas(std::max_align_t)[64];
    return std::shared_ptr<T>(std::shared_ptr<void>(), reinterpret_cast<T*>(storage));
}

struct FixedLaunchType : ILaunchTypeProcessor
{
    int GetLaunchType() const override { return Regular; }
};

// A context holding every one of its components, the settings as real stores in a scratch folder.
struct FullContext
{
    QTemporaryDir folder;
    ITopManager context;

    FullContext()
    {
        const auto path = [this](const char* name) { return folder.filePath(QString::fromLatin1(name)); };
        context.set<IApplicationSettingsManager>(std::make_shared<ApplicationSettingsManager>(path("a.ini")));
        context.set<ICustomizationManager>(std::make_shared<CustomizationManager>(path("none.ini")));
        context.set<IIdleManager>(placeholder<IIdleManager>());
        context.set<IInstallerSettingsManager>(std::make_shared<InstallerSettingsManager>(path("i.ini")));
        context.set<IInternetConnectionChecker>(placeholder<IInternetConnectionChecker>());
        context.set<ILifetimeManager>(std::make_shared<LifetimeManager>());
        context.set<ILaunchTypeProcessor>(std::make_shared<FixedLaunchType>());
        context.set<ILinksManager>(placeholder<ILinksManager>());
        context.set<ILookAndFeelManager>(placeholder<ILookAndFeelManager>());
        context.set<IMailSettingsManager>(std::make_shared<MailSettingsManager>(path("m.ini")));
        context.set<IPCBaseProtocol>(std::make_shared<IPCBaseProtocol>());
        context.set<IPartnerTracking>(placeholder<IPartnerTracking>());
        context.set<IProductSettingsManager>(std::make_shared<ProductSettingsManager>(path("p.ini")));
        context.set<IUserSettingsManager>(std::make_shared<UserSettingsManager>(path("u.ini")));
        context.set<Web::IAccountController>(placeholder<Web::IAccountController>());
        context.set<IHardwareInfo>(std::make_shared<HardwareInfo>());
        context.set<NagScreen::IManager>(placeholder<NagScreen::IManager>());
        context.set<WebSocket::IMessageBroker>(placeholder<WebSocket::IMessageBroker>());
        context.set<ExternalStimulus::IGateway>(std::make_shared<ExternalStimulus::DirectCallGateway>());
        context.set<Networking::IHttpClient>(placeholder<Networking::IHttpClient>());
        context.set<Tracking::GeneralOstrelTracker>(
            std::make_shared<Tracking::GeneralOstrelTracker>(path("t.jsonl")));
    }
};

void BM_ComponentFetchFirst(benchmark::State& state)
{
    FullContext full;
    for (auto _ : state)
        benchmark::DoNotOptimize(full.context.get<IApplicationSettingsManager>());
}
BENCHMARK(BM_ComponentFetchFirst);

void BM_ComponentFetchLast(benchmark::State& state)
{
    FullContext full;
    for (auto _ : state)
        benchmark::DoNotOptimize(full.context.get<Tracking::GeneralOstrelTracker>());
}
BENCHMARK(BM_ComponentFetchLast);

// One fixed batch of non-input events through each side, counted by callgrind alone. Both sides run
// once uncounted first, so that neither pays a first call's lazy binding or allocation.
int countInstructions()
{
    if (!RUNNING_ON_VALGRIND) {
        std::fprintf(stderr,
                     "--count-instructions counts under valgrind --tool=callgrind --instr-atstart=no\n");
        return 2;
    }
    EventMix mix;
    mix.withPress = false;
    const auto batch = [&mix](bool (*dispatch)(QObject*, QEvent*)) {
        for (int i = 0; i < 200; ++i)
            mix.run(dispatch);
    };
    LiveMix live;
    const auto liveBatch = [&live](bool (*dispatch)(QObject*, QEvent*)) {
        for (int i = 0; i < 20; ++i)
            live.run(dispatch);
    };
    CALLGRIND_START_INSTRUMENTATION;
    batch(shellNotify);
    batch(qtNotify);
    liveBatch(shellNotify);
    liveBatch(qtNotify);
    CALLGRIND_ZERO_STATS;
    batch(shellNotify);
    CALLGRIND_DUMP_STATS_AT("shell");
    batch(qtNotify);
    CALLGRIND_DUMP_STATS_AT("qapplication");
    liveBatch(shellNotify);
    CALLGRIND_DUMP_STATS_AT("live-shell");
    liveBatch(qtNotify);
    CALLGRIND_DUMP_STATS_AT("live-qapplication");
    CALLGRIND_STOP_INSTRUMENTATION;
    return 0;
}

} // namespace

int main(int argc, char** argv)
{
    google::InitGoogleLogging(argv[0]);
    QTemporaryDir logFolder;
    FLAGS_timestamp_in_logfile_name = false;
    google::SetLogDestination(google::GLOG_INFO,
                              logFolder.filePath(QStringLiteral("bench.log")).toUtf8().constData());
    qputenv("QT_QPA_PLATFORM", "offscreen");
    auto lifetime = std::make_shared<LifetimeManager>();
    Application application(argc, argv, lifetime, Application::DISABLE_APP_MUTEX);
    if (argc > 1 && std::strcmp(argv[1], "--count-instructions") == 0)
        return countInstructions();
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
