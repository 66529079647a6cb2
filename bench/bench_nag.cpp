// A local QML nag from ShowNag to its first frame, beside a bare QQuickWidget loading and drawing
// the same QML. BM_NagRatio alternates the two in one run and reports shell / bare as "ratio".
// Times are the process's CPU time (every thread): on a shared, loaded machine the wall clock
// mostly measures the neighbours.
//
//   build/bin/bench_nag
//
// `bench_nag --bare-start=<ms>` is the baseline of bench_start's start that shows a nag: a
// QApplication and a QMainWindow with a menu, shown, then a bare QQuickWidget drawing the nag the
// host shows at its start, and a quit after <ms>, as the host's --quit-after.
//
// "First frame": the nag's scene rendered once (its QQuickWindow's afterRendering). The strategy
// here shows the nag's widget and ends the nag at that frame; what a product's dialog strategy
// adds around it (dimmers, a dialog) is its own cost, not the nag library's.

#include "Nag/AbstractContent.h"
#include "Nag/IShowStrategy.h"
#include "Nag/NagManager.h"

#include "CpuClock.h"

#include <benchmark/benchmark.h>
#include <glog/logging.h>

#include <QApplication>
#include <QEventLoop>
#include <QFile>
#include <QMainWindow>
#include <QMenuBar>
#include <QQmlContext>
#include <QQuickWidget>
#include <QQuickWindow>
#include <QSGRendererInterface>
#include <QTemporaryDir>
#include <QTimer>

#include <chrono>
#include <cstdlib>
#include <cstring>

using namespace Ostrel::App::NagScreen;

namespace {

using Clock = ProcessCpuClock;

const char* const NagQml = R"(import QtQuick 2.15
Rectangle {
    width: 480; height: 320; color: "#20242c"
    property string nag_id: "bench"
    Column {
        anchors.centerIn: parent; spacing: 12
        Repeater { model: 8; Rectangle { width: 300; height: 18; radius: 4; color: index % 2 ? "#58e47b" : "#b4bad0" } }
        Text { text: "Welcome"; color: "white"; font.pixelSize: 24 }
    }
}
)";

// Shows the widget and runs the event loop until its scene was rendered once (bounded).
void untilFirstFrame(QQuickWidget& view)
{
    QEventLoop loop;
    QObject::connect(view.quickWindow(), &QQuickWindow::afterRendering, &loop, &QEventLoop::quit,
                     Qt::QueuedConnection);
    QTimer::singleShot(10000, &loop, &QEventLoop::quit);
    view.show();
    loop.exec();
    view.hide();
}

class FirstFrameStrategy : public IShowStrategy
{
public:
    int ShowNag(AbstractContent& content) override
    {
        auto* view = qobject_cast<QQuickWidget*>(content.GetUi());
        if (!view)
            view = content.GetUi()->findChild<QQuickWidget*>();
        if (!view)
            return -1;
        untilFirstFrame(*view);
        return 1;
    }
};

struct Nag
{
    QTemporaryDir dir;
    QString qml;
    NagManager manager{nullptr, dir.filePath(QStringLiteral("none.json"))};

    Nag()
    {
        qml = dir.filePath(QStringLiteral("main.qml"));
        QFile file(qml);
        if (file.open(QIODevice::WriteOnly))
            file.write(NagQml);
        file.close();
        manager.OverrideNagPath(QStringLiteral("bench"), qml);
        manager.SetShowStrategy(std::make_shared<FirstFrameStrategy>());
    }

    Clock::duration shell()
    {
        const auto start = Clock::now();
        const int code = manager.ShowNag(QStringLiteral("bench"));
        const auto elapsed = Clock::now() - start;
        if (code != 1)
            LOG(FATAL) << "the nag did not show (" << code << ")";
        return elapsed;
    }

    Clock::duration bare()
    {
        const auto start = Clock::now();
        {
            QQuickWidget view;
            view.setResizeMode(QQuickWidget::SizeViewToRootObject);
            view.setSource(QUrl::fromLocalFile(qml));
            untilFirstFrame(view);
        }
        return Clock::now() - start;
    }
};

void BM_NagShell(benchmark::State& state)
{
    Nag nag;
    for (auto _ : state)
        state.SetIterationTime(std::chrono::duration<double>(nag.shell()).count());
}
BENCHMARK(BM_NagShell)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(20);

void BM_NagBare(benchmark::State& state)
{
    Nag nag;
    for (auto _ : state)
        state.SetIterationTime(std::chrono::duration<double>(nag.bare()).count());
}
BENCHMARK(BM_NagBare)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(20);

void BM_NagRatio(benchmark::State& state)
{
    Nag nag;
    Clock::duration shell{}, bare{};
    for (auto _ : state) {
        // Alternating, so that drift of the machine hits both sides alike.
        bare += nag.bare();
        shell += nag.shell();
    }
    const double n = double(state.iterations());
    state.counters["shell_ms"] = std::chrono::duration<double, std::milli>(shell).count() / n;
    state.counters["bare_ms"] = std::chrono::duration<double, std::milli>(bare).count() / n;
    state.counters["ratio"] = bare.count() ? double(shell.count()) / double(bare.count()) : 0.0;
}
BENCHMARK(BM_NagRatio)->Iterations(20)->Unit(benchmark::kMillisecond);

int bareStartWithNag(int argc, char** argv, int quitAfterMs)
{
    QApplication app(argc, argv);
    QMainWindow window;
    window.menuBar()->addMenu(QStringLiteral("&Help"))->addAction(QStringLiteral("&About"));
    window.resize(800, 600);
    window.show();
    QObject bridge; // the nag calls its bridge only when clicked
    QQuickWidget view;
    QTimer::singleShot(0, &app, [&]() {
        view.setResizeMode(QQuickWidget::SizeViewToRootObject);
        view.rootContext()->setContextProperty(QStringLiteral("callback"), &bridge);
        view.setSource(QUrl(QStringLiteral("qrc:/NagScreen/app_start/main.qml")));
        view.show();
    });
    QTimer::singleShot(quitAfterMs, &app, &QCoreApplication::quit);
    return QApplication::exec();
}

} // namespace

int main(int argc, char** argv)
{
    if (argc > 1 && std::strncmp(argv[1], "--bare-start=", 13) == 0)
        return bareStartWithNag(argc, argv, std::atoi(argv[1] + 13));
    FLAGS_minloglevel = google::GLOG_ERROR;
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QQuickWindow::setSceneGraphBackend(QSGRendererInterface::Software);
    QApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
