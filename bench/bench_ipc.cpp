// Requests of other processes at the primary instance: valid requests in a row, each on a
// connection of its own (as `ostrel-host --open-nag` sends them), from a client process (this
// program with --client) to the primary's listener in this one, over the user's local socket.
// Counters: "requests" answered, "failed", "max_ms" (the slowest request, connect to
// acknowledgement, after the first thousand) and "growth_MiB" (the primary's resident memory after
// the last request minus after the first thousand, when the allocator has its working set).
//
//   build/bin/bench_ipc [--requests=100000] [--seconds=120]
//
// Bounded in count and in time: the client stops at whichever comes first.

#include "Ipc/LocalSocketProtocol.h"

#include <benchmark/benchmark.h>
#include <glog/logging.h>

#include <QCoreApplication>
#include <QDir>
#include <QEventLoop>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <chrono>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <unistd.h>

using namespace Ostrel::App;

namespace {

long requestCount = 100000;
long secondsLimit = 120;
const QString Product = QStringLiteral("OstrelBenchIpc");
const long WarmUp = 1000;

double residentMiB()
{
    std::ifstream statm("/proc/self/statm");
    long pages = 0, resident = 0;
    statm >> pages >> resident;
    return double(resident) * double(sysconf(_SC_PAGESIZE)) / (1024.0 * 1024.0);
}

// The client: prints "warm" after the first thousand requests, then "<answered> <failed> <max ms>".
int client()
{
    using Clock = std::chrono::steady_clock;
    const auto end = Clock::now() + std::chrono::seconds(secondsLimit);
    const QString url = QStringLiteral("https://nags.example/offer?campaign=bench");
    long answered = 0, failed = 0;
    double maxMs = 0;
    for (long i = 0; i < requestCount && Clock::now() < end; ++i) {
        const auto start = Clock::now();
        const bool ok = LocalSocketProtocol::SendOpenNag(Product, url, 3000);
        const double ms = std::chrono::duration<double, std::milli>(Clock::now() - start).count();
        ok ? ++answered : ++failed;
        if (i == WarmUp - 1) {
            std::puts("warm");
            std::fflush(stdout);
        } else if (i >= WarmUp) {
            maxMs = std::max(maxMs, ms);
        }
    }
    std::printf("%ld %ld %f\n", answered, failed, maxMs);
    return 0;
}

void BM_IpcRequests(benchmark::State& state)
{
    LocalSocketProtocol primary(Product);
    if (!primary.Listen()) {
        state.SkipWithError("the primary could not listen");
        return;
    }
    long answered = 0, failed = 0;
    double maxMs = 0, warmMiB = 0, endMiB = 0;
    for (auto _ : state) {
        QProcess process;
        QEventLoop loop;
        QByteArray output;
        QObject::connect(&process, &QProcess::readyReadStandardOutput, [&]() {
            output += process.readAllStandardOutput();
            if (warmMiB == 0 && output.startsWith("warm\n"))
                warmMiB = residentMiB();
        });
        QObject::connect(&process, qOverload<int, QProcess::ExitStatus>(&QProcess::finished), &loop,
                         &QEventLoop::quit);
        process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        process.start(QCoreApplication::applicationFilePath(),
                      {QStringLiteral("--client"), QStringLiteral("--requests=%1").arg(requestCount),
                       QStringLiteral("--seconds=%1").arg(secondsLimit)});
        loop.exec();
        output += process.readAllStandardOutput();
        // The connections of the last requests end in this loop.
        for (int i = 0; i < 10; ++i)
            QCoreApplication::processEvents(QEventLoop::AllEvents, 50);
        endMiB = residentMiB();
        const QList<QByteArray> last = output.trimmed().split('\n').last().split(' ');
        if (last.size() != 3) {
            state.SkipWithError("the client did not report");
            return;
        }
        answered = last[0].toLong();
        failed = last[1].toLong();
        maxMs = last[2].toDouble();
    }
    state.counters["requests"] = double(answered);
    state.counters["failed"] = double(failed);
    state.counters["max_ms"] = maxMs;
    state.counters["growth_MiB"] = endMiB - warmMiB;
}
BENCHMARK(BM_IpcRequests)->Iterations(1)->Unit(benchmark::kMillisecond)->UseRealTime();

} // namespace

int main(int argc, char** argv)
{
    bool isClient = false;
    for (int i = 1; i < argc; ++i) {
        if (std::strncmp(argv[i], "--requests=", 11) == 0)
            requestCount = std::atol(argv[i] + 11);
        else if (std::strncmp(argv[i], "--seconds=", 10) == 0)
            secondsLimit = std::atol(argv[i] + 10);
        else if (std::strcmp(argv[i], "--client") == 0)
            isClient = true;
    }
    if (isClient) {
        QCoreApplication app(argc, argv);
        return client();
    }
    // The primary logs each request, as in a product: to a file.
    QTemporaryDir scratch;
    google::InitGoogleLogging(argv[0]);
    FLAGS_timestamp_in_logfile_name = false;
    google::SetLogDestination(google::GLOG_INFO,
                              scratch.filePath(QStringLiteral("bench.log")).toUtf8().constData());
    // A runtime folder of this run alone (the client inherits it), so no other instance is met.
    const QString runtime = scratch.filePath(QStringLiteral("runtime"));
    QDir().mkpath(runtime);
    QFile::setPermissions(runtime, QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
    qputenv("XDG_RUNTIME_DIR", QFile::encodeName(runtime));
    QCoreApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
