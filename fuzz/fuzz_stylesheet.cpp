// The composition of a united stylesheet from an arbitrary "fonts.json" and style text. The
// input is split at the first NUL byte: the macro file before it, the stylesheet after it.
// Beside the manager's own run, the macros of every block are replaced in one scan and in the
// ordered replacement; a difference aborts.

#include "App/Application/LookAndFeelManager.h"
#include "App/Application/StylesheetMacros.h"

#include <glog/logging.h>

#include <QApplication>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>

#include <cstdint>
#include <cstdlib>
#include <memory>

using namespace Ostrel;

namespace {

struct Fixture
{
    QTemporaryDir dir;
    std::unique_ptr<App::LookAndFeelManager> manager;
    QString macros;
    QString style;
};

Fixture& fixture()
{
    static Fixture* f = [] {
        auto* created = new Fixture;
        created->manager =
            std::make_unique<App::LookAndFeelManager>(Core::ioPath(created->dir.path()), "theme.title",
                                                      std::list<std::string>(), std::list<std::string>());
        created->macros = created->dir.filePath(QStringLiteral("fonts.json"));
        created->style = created->dir.filePath(QStringLiteral("style.qss"));
        return created;
    }();
    return *f;
}

void write(const QString& path, const char* data, size_t size)
{
    QFile file(path);
    if (file.open(QIODevice::WriteOnly | QIODevice::Truncate))
        file.write(data, qint64(size));
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv)
{
    FLAGS_minloglevel = google::GLOG_FATAL;
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static int qtArgc = 1;
    static char* qtArgv[] = {(*argv)[0], nullptr};
    new QApplication(qtArgc, qtArgv); // lives for the whole run; fonts need a GUI application
    fixture();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    Fixture& f = fixture();
    const char* bytes = reinterpret_cast<const char*>(data);
    size_t split = 0;
    while (split < size && bytes[split] != '\0')
        ++split;
    write(f.macros, bytes, split);
    write(f.style, bytes + std::min(split + 1, size), size - std::min(split + 1, size));

    App::ILookAndFeelManager::ThemeDescription description;
    description.macroFiles = {f.macros.toStdString()};
    description.styleFiles = {f.style.toStdString(), ":/productStyle.qss"};
    f.manager->ApplyTheme(description);
    f.manager->GetUnitedStylesheet();

    std::map<QString, QString> macros;
    const QJsonObject root = QJsonDocument::fromJson(QByteArray(bytes, int(split))).object();
    for (const QJsonValue& section : root) {
        for (const QJsonValue& block : section.toObject()) {
            const QVariantMap values = block.toObject().toVariantMap();
            for (auto it = values.cbegin(); it != values.cend(); ++it)
                macros[QLatin1Char('@') + it.key()] = it.value().toString();
        }
    }
    const size_t styleStart = std::min(split + 1, size);
    const QString style = QString::fromUtf8(bytes + styleStart, int(size - styleStart));
    const App::StylesheetMacros scan(macros);
    const QString expected = App::StylesheetMacros::applyInOrder(style, macros);
    if (scan.apply(style) != expected || scan.apply(QString(style)) != expected)
        std::abort();
    return 0;
}
