// Saving settings: a run that changes 20 values of one settings file, in one turn of the event
// loop, then quits. Counters: "writes" (the file's saves, each an atomic rewrite that renames a
// new file into place, counted by the kernel's notifications), "written_bytes" (everything this process wrote
// meanwhile, from /proc/self/io) and "file_bytes" (the size of the saved file, the least one save writes).
//
//   build/bin/bench_settings

#include "Core/SettingsStore.h"

#include <benchmark/benchmark.h>
#include <glog/logging.h>

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTimer>

#include <cstring>
#include <fstream>
#include <string>
#include <sys/inotify.h>
#include <unistd.h>

using Ostrel::App::SettingsStore;

namespace {

long long writtenBytes()
{
    std::ifstream io("/proc/self/io");
    std::string key;
    long long value = 0;
    while (io >> key >> value) {
        if (key == "wchar:")
            return value;
    }
    return 0;
}

void BM_SettingsQuit(benchmark::State& state)
{
    long long writes = 0, bytes = 0, fileBytes = 0;
    for (auto _ : state) {
        QTemporaryDir dir;
        const QString path = dir.filePath(QStringLiteral("application.ini"));
        {
            // A settings file of a product that has run a while: 200 values in 10 groups.
            QFile file(path);
            if (!file.open(QIODevice::WriteOnly))
                state.SkipWithError("no scratch folder");
            for (int group = 0; group < 10; ++group) {
                file.write(QStringLiteral("[group%1]\n").arg(group).toUtf8());
                for (int key = 0; key < 20; ++key)
                    file.write(QStringLiteral("key%1=a value of some length, %2\n")
                                   .arg(key)
                                   .arg(group * 20 + key)
                                   .toUtf8());
            }
        }
        const int watch = inotify_init1(IN_NONBLOCK);
        inotify_add_watch(watch, QFile::encodeName(dir.path()).constData(), IN_MOVED_TO);
        const long long before = writtenBytes();
        {
            SettingsStore store(path);
            QTimer::singleShot(0, [&store]() {
                for (int i = 0; i < 20; ++i)
                    store.SetString("group" + std::to_string(i % 10) + "/key" + std::to_string(i),
                                    "changed " + std::to_string(i));
                QCoreApplication::quit();
            });
            QCoreApplication::exec();
        }
        bytes = writtenBytes() - before;
        // Each save ends with the new file renamed into place. (QSettings also opens the file for
        // writing to read it, so a close after writing would count reads too.)
        alignas(inotify_event) char buffer[64 * 1024];
        writes = 0;
        for (ssize_t length; (length = read(watch, buffer, sizeof buffer)) > 0;) {
            for (char* at = buffer; at < buffer + length;) {
                const auto* event = reinterpret_cast<const inotify_event*>(at);
                if (event->len > 0 && std::strcmp(event->name, "application.ini") == 0)
                    ++writes;
                at += sizeof(inotify_event) + event->len;
            }
        }
        close(watch);
        fileBytes = QFileInfo(path).size();
    }
    state.counters["writes"] = double(writes);
    state.counters["written_bytes"] = double(bytes);
    state.counters["file_bytes"] = double(fileBytes);
}
BENCHMARK(BM_SettingsQuit)->Iterations(1)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv)
{
    // Nothing else writes meanwhile: the log stays off.
    google::InitGoogleLogging(argv[0]);
    FLAGS_minloglevel = google::GLOG_FATAL;
    QCoreApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
