#pragma once

#include "Nag/QmlContent.h"

class QTimer;

namespace Ostrel::App::NagScreen {

/// A nag fetched over HTTP, shown inside a small local QML shell. A row of the nag map addressed
/// to the nag server (the address the manager's IWebNagUrlGenerator asks, query aside) loads the
/// generator's request, which describes the installation; any other address (a nag opened on
/// request) loads as it stands. A server that answers with an error, or doesn't answer within the
/// environment's time-out, makes it Failed.
class OSTREL_NAGQUICK_EXPORT WebQuickContent : public QmlContent
{
    Q_OBJECT
public:
    WebQuickContent(const NagContext& context, const QUrl& fallbackUrl, ContentEnvironment environment,
                    QObject* parent = nullptr);
    ~WebQuickContent() override;

    QUrl SourceUrl() const override;
    QUrl LocalUrl() const override;
    QString Type() const override;
    void Load() override;
    void LoadFromPath(const QString& path) override;
    QString ReportedId() const override;

protected:
    QQuickItem* nagItem() const override;

private Q_SLOTS:
    void onShellStatus();

private:
    void start(const QUrl& url);

    QUrl m_fallbackUrl;
    QUrl m_source;
    QTimer* m_timeout;
};

} // namespace Ostrel::App::NagScreen
