// The host's start beside the least a Qt desktop program does: CPU time and peak memory of
// `ostrel-host --no-start-nag --quit-after=0`, and of this program started with --bare (a
// QApplication and a QMainWindow with a menu, shown, then quit from the event loop). Both run as
// child processes, alternately, in one run; counters: "ratio" (host CPU / bare CPU) and
// "extra_MiB" (host peak resident memory minus the bare one's).
//
//   build/bin/bench_start [--host=<path of ostrel-host>]   (default: beside this program)
//
// BM_StartWithNagRatio: the host showing the nag of its start at once and quitting after a while,
// against `bench_nag --bare-start` (the bare window with a bare QQuickWidget drawing the same nag,
// quitting after the same while): the first nag loads Qt Quick, which the bare program links.
// Neither does anything once the nag is drawn, so the wait costs no CPU.
//
// The host runs in a scratch home and runtime folder, offscreen, so it touches no real settings.

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QDir>
#include <QMainWindow>
#include <QMenuBar>
#include <QProcess>
#include <QTemporaryDir>
#include <QTimer>

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstring>
#include <string>
#include <vector>

namespace {

struct Usage
{
    double cpuSeconds = 0;
    double peakMiB = 0;
};

std::string& hostPath()
{
    static std::string path;
    return path;
}

std::string& selfPath()
{
    static std::string path;
    return path;
}

std::string& bareNagPath()
{
    static std::string path;
    return path;
}

const char* const NagWaitMs = "1500";

// Runs the program to its end with the environment given and reads what the kernel counted.
Usage run(const std::vector<std::string>& args, const std::vector<std::string>& environment)
{
    const pid_t child = fork();
    if (child == 0) {
        std::vector<char*> argv;
        for (const std::string& arg : args)
            argv.push_back(const_cast<char*>(arg.c_str()));
        argv.push_back(nullptr);
        std::vector<char*> envp;
        for (const std::string& entry : environment)
            envp.push_back(const_cast<char*>(entry.c_str()));
        envp.push_back(nullptr);
        if (!freopen("/dev/null", "w", stdout) || !freopen("/dev/null", "w", stderr))
            _exit(126);
        execve(argv[0], argv.data(), envp.data());
        _exit(127);
    }
    int status = 0;
    rusage usage{};
    wait4(child, &status, 0, &usage);
    Usage result;
    if (!WIFEXITED(status) || WEXITSTATUS(status) != 0)
        return result;
    result.cpuSeconds = double(usage.ru_utime.tv_sec + usage.ru_stime.tv_sec) +
                        double(usage.ru_utime.tv_usec + usage.ru_stime.tv_usec) / 1e6;
    result.peakMiB = double(usage.ru_maxrss) / 1024.0;
    return result;
}

struct Scratch
{
    QTemporaryDir home;
    std::vector<std::string> environment;

    Scratch()
    {
        QDir().mkpath(home.filePath(QStringLiteral("runtime")));
        QFile::setPermissions(home.filePath(QStringLiteral("runtime")),
                              QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
        const auto path = [this](const char* name) {
            return home.filePath(QLatin1String(name)).toStdString();
        };
        environment = {"HOME=" + path(""),
                       "XDG_RUNTIME_DIR=" + path("runtime"),
                       "XDG_CONFIG_HOME=" + path("config"),
                       "XDG_DATA_HOME=" + path("data"),
                       "XDG_CACHE_HOME=" + path("cache"),
                       "QT_QPA_PLATFORM=offscreen",
                       "QT_QUICK_BACKEND=software",
                       "LANG=C.UTF-8",
                       std::string("PATH=") + (getenv("PATH") ? getenv("PATH") : "/usr/bin:/bin")};
    }

    Usage host() const { return run({hostPath(), "--no-start-nag", "--quit-after=0"}, environment); }
    Usage bare() const { return run({selfPath(), "--bare"}, environment); }
    Usage hostWithNag() const
    {
        return run({hostPath(), "--start-nag-delay=0", std::string("--quit-after=") + NagWaitMs},
                   environment);
    }
    Usage bareWithNag() const
    {
        return run({bareNagPath(), std::string("--bare-start=") + NagWaitMs}, environment);
    }
};

void BM_StartRatio(benchmark::State& state)
{
    Scratch scratch;
    scratch.host(); // the first start creates the settings and log folders
    double hostCpu = 0, bareCpu = 0, hostPeak = 0, barePeak = 0;
    for (auto _ : state) {
        const Usage bare = scratch.bare();
        const Usage host = scratch.host();
        if (host.cpuSeconds <= 0 || bare.cpuSeconds <= 0) {
            state.SkipWithError("a start failed (is ostrel-host built?)");
            return;
        }
        bareCpu += bare.cpuSeconds;
        hostCpu += host.cpuSeconds;
        barePeak = std::max(barePeak, bare.peakMiB);
        hostPeak = std::max(hostPeak, host.peakMiB);
    }
    const double n = double(state.iterations());
    state.counters["host_ms"] = hostCpu / n * 1000;
    state.counters["bare_ms"] = bareCpu / n * 1000;
    state.counters["ratio"] = hostCpu / bareCpu;
    state.counters["host_MiB"] = hostPeak;
    state.counters["bare_MiB"] = barePeak;
    state.counters["extra_MiB"] = hostPeak - barePeak;
}
BENCHMARK(BM_StartRatio)->Iterations(10)->Unit(benchmark::kMillisecond);

void BM_StartWithNagRatio(benchmark::State& state)
{
    Scratch scratch;
    scratch.host();
    double hostCpu = 0, bareCpu = 0;
    for (auto _ : state) {
        const Usage bare = scratch.bareWithNag();
        const Usage host = scratch.hostWithNag();
        if (host.cpuSeconds <= 0 || bare.cpuSeconds <= 0) {
            state.SkipWithError("a start failed (are ostrel-host and bench_nag built?)");
            return;
        }
        bareCpu += bare.cpuSeconds;
        hostCpu += host.cpuSeconds;
    }
    const double n = double(state.iterations());
    state.counters["host_ms"] = hostCpu / n * 1000;
    state.counters["bare_ms"] = bareCpu / n * 1000;
    state.counters["ratio"] = hostCpu / bareCpu;
}
BENCHMARK(BM_StartWithNagRatio)->Iterations(6)->Unit(benchmark::kMillisecond);

int bareWindow(int argc, char** argv)
{
    QApplication app(argc, argv);
    QMainWindow window;
    window.menuBar()->addMenu(QStringLiteral("&Help"))->addAction(QStringLiteral("&About"));
    window.resize(800, 600);
    window.show();
    QTimer::singleShot(0, &app, &QCoreApplication::quit);
    return QApplication::exec();
}

} // namespace

int main(int argc, char** argv)
{
    if (argc > 1 && std::strcmp(argv[1], "--bare") == 0)
        return bareWindow(argc, argv);
    char resolved[4096] = {};
    const ssize_t length = readlink("/proc/self/exe", resolved, sizeof(resolved) - 1);
    selfPath() = length > 0 ? std::string(resolved, size_t(length)) : std::string(argv[0]);
    hostPath() = selfPath().substr(0, selfPath().rfind('/') + 1) + "ostrel-host";
    bareNagPath() = selfPath().substr(0, selfPath().rfind('/') + 1) + "bench_nag";
    for (int i = 1; i < argc; ++i) {
        if (std::strncmp(argv[i], "--host=", 7) == 0)
            hostPath() = argv[i] + 7;
    }
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
