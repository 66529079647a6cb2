#pragma once

#include "App/Application/ostrel_app_export.h"

#include <QObject>
#include <QUrl>

#include <memory>

namespace Ostrel::App {

/// Stands in for the desktop's handler of web links: every URL is written to a file, a line each,
/// and no browser opens. A file that can't be opened swallows the URLs silently.
class OSTREL_APP_EXPORT LogURLHandler : public QObject
{
    Q_OBJECT
public:
    LogURLHandler(QObject* parent, const QString& path);
    ~LogURLHandler() override;

public Q_SLOTS:
    void logUrls(const QUrl& url);

private:
    class Impl;
    std::unique_ptr<Impl> d;
};

} // namespace Ostrel::App
