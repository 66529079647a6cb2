#include "App/Application/Testing/LogURLHandler.h"

#include "Foundation/UserOnlyFiles.h"

#include <QFile>
#include <QTextStream>

namespace Ostrel::App {

class LogURLHandler::Impl
{
public:
    std::unique_ptr<QFile> file;
};

LogURLHandler::LogURLHandler(QObject* parent, const QString& path)
    : QObject(parent), d(std::make_unique<Impl>())
{
    // The links carry the user's name and address: a new file is the user's alone.
    Core::UserOnlyFiles::prepareFile(path);
    d->file = std::make_unique<QFile>(path);
    if (!d->file->open(QIODevice::WriteOnly))
        d->file.reset();
}

LogURLHandler::~LogURLHandler() = default;

void LogURLHandler::logUrls(const QUrl& url)
{
    if (!d->file)
        return;
    // Flushed at once, so that a reader sees the line while the product runs, or after a crash.
    QTextStream stream(d->file.get());
    stream << url.url() << Qt::endl;
}

} // namespace Ostrel::App
