// SetTheme and SetLocale on the generated resource tree and on a large synthetic theme (a 200 KB
// stylesheet, 200 macros), each beside the raw cost of reading and registering the same files.
// Read the ratios pairwise: BM_SetTheme_X / BM_RawTheme_X and BM_SetLocale / BM_RawLocale.
// BM_ComposeSynthetic composes the synthetic sheet afresh (no earlier composition to reuse) and
// BM_QtApplySynthetic is Qt applying the composed text to a window of 100 widgets: composing
// should be a small part of what a theme switch costs the application anyway. Times are the
// process's CPU time.
//
//   bench_lookandfeel <build folder>    (default: the folder above the executable's bin/)

#include "App/Application/LookAndFeelManager.h"

#include "CpuClock.h"

#include <benchmark/benchmark.h>
#include <glog/logging.h>

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLabel>
#include <QProcess>
#include <QPushButton>
#include <QResource>
#include <QTemporaryDir>
#include <QTranslator>
#include <QVBoxLayout>

#include <chrono>
#include <memory>
#include <vector>

using namespace Ostrel;

namespace {

QString& treeRoot()
{
    static QString root;
    return root;
}

QString& syntheticRoot()
{
    static QString root;
    return root;
}

// A theme "big" with one resource file: 200 macros used all over a 200 KB stylesheet.
bool makeSyntheticTheme(const QString& root)
{
    const QString source = root + QStringLiteral("/src");
    const QString theme = root + QStringLiteral("/resources/themes/big");
    QDir().mkpath(source);
    QDir().mkpath(theme);
    QDir().mkpath(root + QStringLiteral("/resources/locales/en_US"));
    QJsonObject macros;
    for (int i = 0; i < 200; ++i)
        macros.insert(QStringLiteral("macro%1x").arg(i, 3, 10, QLatin1Char('0')),
                      QStringLiteral("#%1").arg(i * 4111, 6, 16, QLatin1Char('0')));
    QJsonObject all{{QStringLiteral("all_languages"), macros}};
    QFile json(source + QStringLiteral("/fonts.json"));
    if (!json.open(QIODevice::WriteOnly))
        return false;
    json.write(QJsonDocument(QJsonObject{{QStringLiteral("all_platforms"), all}}).toJson());
    json.close();
    QByteArray style;
    for (int i = 0; style.size() < 200 * 1024; ++i)
        style += QStringLiteral("QWidget#w%1 { color: @macro%2x; background: @macro%3x; }\n")
                     .arg(i)
                     .arg(i % 200, 3, 10, QLatin1Char('0'))
                     .arg((i * 7) % 200, 3, 10, QLatin1Char('0'))
                     .toUtf8();
    QFile qss(source + QStringLiteral("/style.qss"));
    if (!qss.open(QIODevice::WriteOnly))
        return false;
    qss.write(style);
    qss.close();
    QFile qrc(source + QStringLiteral("/big.qrc"));
    if (!qrc.open(QIODevice::WriteOnly))
        return false;
    qrc.write(
        "<RCC><qresource prefix=\"/big\"><file>style.qss</file><file>fonts.json</file></qresource></RCC>\n");
    qrc.close();
    QFile title(theme + QStringLiteral("/theme.title"));
    if (!title.open(QIODevice::WriteOnly))
        return false;
    title.write("en_US = Big\n");
    title.close();
    return QProcess::execute(QStringLiteral("rcc"),
                             {QStringLiteral("-binary"), source + QStringLiteral("/big.qrc"),
                              QStringLiteral("-o"), theme + QStringLiteral("/big.rcc")}) == 0;
}

// What any theme switch costs at least: register the files and read every text in them.
void rawTheme(benchmark::State& state, const QString& root, const QString& theme)
{
    const QFileInfoList files = QDir(root + QStringLiteral("/resources/themes/") + theme)
                                    .entryInfoList({QStringLiteral("*.rcc")}, QDir::Files);
    for (auto _ : state) {
        const auto start = ProcessCpuClock::now();
        qint64 bytes = 0;
        for (const QFileInfo& file : files) {
            QResource::registerResource(file.absoluteFilePath());
            for (const char* name : {"style.qss", "fonts_win.qss", "fonts.json", "fonts.manifest"}) {
                QFile text(QStringLiteral(":/") + file.baseName() + QLatin1Char('/') + QLatin1String(name));
                if (text.open(QIODevice::ReadOnly))
                    bytes += text.readAll().size();
            }
        }
        for (const QFileInfo& file : files)
            QResource::unregisterResource(file.absoluteFilePath());
        benchmark::DoNotOptimize(bytes);
        state.SetIterationTime(std::chrono::duration<double>(ProcessCpuClock::now() - start).count());
    }
}

void managerTheme(benchmark::State& state, const QString& root, const std::string& theme)
{
    App::LookAndFeelManager manager(Core::ioPath(root), "theme.title", {}, {});
    manager.SetLocale("en_US");
    for (auto _ : state) {
        const auto start = ProcessCpuClock::now();
        manager.SetTheme(theme);
        manager.SetTheme(std::string());
        state.SetIterationTime(std::chrono::duration<double>(ProcessCpuClock::now() - start).count());
    }
    benchmark::DoNotOptimize(manager.GetUnitedStylesheet());
}

void BM_RawTheme_Real(benchmark::State& state)
{
    rawTheme(state, treeRoot(), QStringLiteral("dark"));
}
void BM_SetTheme_Real(benchmark::State& state)
{
    managerTheme(state, treeRoot(), "dark");
}
void BM_RawTheme_Synthetic(benchmark::State& state)
{
    rawTheme(state, syntheticRoot(), QStringLiteral("big"));
}
void BM_SetTheme_Synthetic(benchmark::State& state)
{
    managerTheme(state, syntheticRoot(), "big");
}

App::ILookAndFeelManager::ThemeDescription syntheticDescription()
{
    App::ILookAndFeelManager::ThemeDescription description;
    description.styleFiles = {":/big/style.qss", ":/big/fonts_win.qss", ":/productStyle.qss",
                              ":/productStyle_win.qss"};
    description.macroFiles = {":/big/fonts.json"};
    description.fontManifestFiles = {":/big/fonts.manifest"};
    return description;
}

void BM_ComposeSynthetic(benchmark::State& state)
{
    const QString rcc = syntheticRoot() + QStringLiteral("/resources/themes/big/big.rcc");
    QResource::registerResource(rcc);
    const auto description = syntheticDescription();
    for (auto _ : state) {
        App::LookAndFeelManager manager(Core::ioPath(syntheticRoot() + QStringLiteral("/none")),
                                        "theme.title", {}, {});
        const auto start = ProcessCpuClock::now();
        manager.ApplyTheme(description);
        state.SetIterationTime(std::chrono::duration<double>(ProcessCpuClock::now() - start).count());
    }
    QResource::unregisterResource(rcc);
}

void BM_QtApplySynthetic(benchmark::State& state)
{
    const QString rcc = syntheticRoot() + QStringLiteral("/resources/themes/big/big.rcc");
    QResource::registerResource(rcc);
    App::LookAndFeelManager manager(Core::ioPath(syntheticRoot() + QStringLiteral("/none")), "theme.title",
                                    {}, {});
    manager.ApplyTheme(syntheticDescription());
    const QString sheet = QString::fromStdString(manager.GetUnitedStylesheet());
    QResource::unregisterResource(rcc);
    QWidget window;
    auto* layout = new QVBoxLayout(&window);
    for (int i = 0; i < 100; ++i) {
        QWidget* widget = i % 2 ? static_cast<QWidget*>(new QPushButton(QStringLiteral("Button")))
                                : new QLabel(QStringLiteral("Label"));
        widget->setObjectName(QStringLiteral("w%1").arg(i));
        layout->addWidget(widget);
    }
    window.show();
    for (auto _ : state) {
        const auto start = ProcessCpuClock::now();
        qApp->setStyleSheet(sheet);
        state.SetIterationTime(std::chrono::duration<double>(ProcessCpuClock::now() - start).count());
        qApp->setStyleSheet(QString());
    }
}

void BM_RawLocale(benchmark::State& state)
{
    // The same files the manager loads: every .qm of the locale's folder (the shell's and Qt's own),
    // listed once, as the manager lists them once.
    std::vector<QStringList> files;
    for (const QString& locale : {QStringLiteral("de_DE"), QStringLiteral("ru_RU")}) {
        const QDir folder(treeRoot() + QStringLiteral("/resources/locales/") + locale);
        QStringList paths;
        for (const QString& name : folder.entryList({QStringLiteral("*.qm")}, QDir::Files))
            paths << folder.filePath(name);
        files.push_back(paths);
    }
    std::size_t i = 0;
    for (auto _ : state) {
        std::vector<std::unique_ptr<QTranslator>> translators;
        for (const QString& path : files[i++ % files.size()]) {
            translators.push_back(std::make_unique<QTranslator>());
            translators.back()->load(path);
            QCoreApplication::installTranslator(translators.back().get());
        }
        for (const auto& translator : translators)
            QCoreApplication::removeTranslator(translator.get());
    }
}

void BM_SetLocale(benchmark::State& state)
{
    App::LookAndFeelManager manager(Core::ioPath(treeRoot()), "theme.title", {}, {});
    const std::string locales[] = {"de_DE", "ru_RU"};
    int i = 0;
    for (auto _ : state)
        manager.SetLocale(locales[i++ % 2]);
}

} // namespace

BENCHMARK(BM_RawTheme_Real)->UseManualTime()->Unit(benchmark::kMicrosecond);
BENCHMARK(BM_SetTheme_Real)->UseManualTime()->Unit(benchmark::kMicrosecond);
BENCHMARK(BM_RawTheme_Synthetic)->UseManualTime()->Unit(benchmark::kMicrosecond);
BENCHMARK(BM_SetTheme_Synthetic)->UseManualTime()->Unit(benchmark::kMicrosecond);
BENCHMARK(BM_ComposeSynthetic)->UseManualTime()->Unit(benchmark::kMicrosecond);
BENCHMARK(BM_QtApplySynthetic)->UseManualTime()->Unit(benchmark::kMicrosecond)->Iterations(20);
BENCHMARK(BM_RawLocale)->Unit(benchmark::kMicrosecond);
BENCHMARK(BM_SetLocale)->Unit(benchmark::kMicrosecond);

int main(int argc, char** argv)
{
    FLAGS_minloglevel = google::GLOG_ERROR;
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    treeRoot() = argc > 1 ? QString::fromLocal8Bit(argv[1])
                          : QDir::cleanPath(QCoreApplication::applicationDirPath() + QStringLiteral("/.."));
    QTemporaryDir synthetic;
    syntheticRoot() = synthetic.path();
    if (!makeSyntheticTheme(syntheticRoot())) {
        LOG(ERROR) << "Cannot build the synthetic theme (is rcc on PATH?)";
        return 1;
    }
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
