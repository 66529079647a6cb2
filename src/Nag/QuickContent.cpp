#include "Nag/QuickContent.h"

#include "Foundation/Utf8.h"

#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWidget>

namespace Ostrel::App::NagScreen {

QuickContent::QuickContent(const NagContext& context, const QUrl& mainQml, ContentEnvironment environment,
                           QObject* parent)
    : QmlContent(context, std::move(environment), parent), m_source(mainQml)
{
    connect(view(), &QQuickWidget::statusChanged, this, &QuickContent::onStatus);
}

QuickContent::~QuickContent() = default;

QUrl QuickContent::SourceUrl() const
{
    return m_source;
}

QUrl QuickContent::LocalUrl() const
{
    return m_source;
}

QString QuickContent::Type() const
{
    const QString type =
        QmlContent::nagItem() ? QmlContent::nagItem()->property("nag_type").toString() : QString();
    return type.isEmpty() ? QStringLiteral("static") : type;
}

void QuickContent::Load()
{
    load(m_source);
}

void QuickContent::LoadFromPath(const QString& path)
{
    if (path.isEmpty()) {
        m_source = QUrl();
        fail("no main.qml was given");
        return;
    }
    m_source =
        path.startsWith(QLatin1String(":/")) ? QUrl(QLatin1String("qrc") + path) : QUrl::fromLocalFile(path);
    // A nag under development changes between two loads: never take it from the cache.
    view()->engine()->clearComponentCache();
    load(m_source);
}

void QuickContent::load(const QUrl& url)
{
    setState(ContentState::Loading);
    if (!url.isValid() || url.isEmpty()) {
        fail("the nag has no source");
        return;
    }
    allowOwnFolder(url);
    view()->setSource(url);
    if (view()->status() != QQuickWidget::Loading)
        onStatus();
}

void QuickContent::onStatus()
{
    switch (view()->status()) {
    case QQuickWidget::Ready:
        if (State() != ContentState::Ready)
            adoptNagItem();
        break;
    case QQuickWidget::Error: {
        if (State() == ContentState::Failed)
            break;
        QString errors;
        for (const QQmlError& error : view()->errors())
            errors += QLatin1Char('\n') + error.toString();
        fail("cannot load " + Util::QStringToUtf8(m_source.toString()) + Util::QStringToUtf8(errors));
        break;
    }
    case QQuickWidget::Null:
    case QQuickWidget::Loading:
        break;
    }
}

} // namespace Ostrel::App::NagScreen
