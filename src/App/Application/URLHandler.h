#pragma once

#include "App/Application/ostrel_app_export.h"

#include <QObject>
#include <QUrl>

namespace Ostrel::App {

class PreferredBrowser;

/// Takes over "http" and "https" for the whole process: every QDesktopServices::openUrl of such
/// a URL lands in OpenURLWithPreferredBrowser, which starts the preferred browser with the URL
/// as its one argument (never through a shell), falls back to the system's default browser, and
/// reports "URL_OPEN". Once the preferred browser turned out to be none, the rest of the run uses
/// the system's default without asking again.
class OSTREL_APP_EXPORT URLHandler : public QObject
{
    Q_OBJECT
public:
    URLHandler(QObject* parent, PreferredBrowser& browser);
    ~URLHandler() override;

public slots:
    void OpenURLWithPreferredBrowser(const QUrl& url);

private:
    PreferredBrowser& m_browser;
    bool m_useSystemBrowser = false;
};

} // namespace Ostrel::App
