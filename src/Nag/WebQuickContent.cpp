#include "Nag/WebQuickContent.h"

#include "Foundation/Utf8.h"
#include "Nag/IWebNagUrlGenerator.h"

#include <QQuickItem>
#include <QQuickWidget>
#include <QTimer>

namespace Ostrel::App::NagScreen {

namespace {

// Host, port and path: the scheme may have been lowered to http for a test run without SSL, and
// the query is the generator's to fill.
bool sameEndpoint(const QUrl& a, const QUrl& b)
{
    const auto path = [](const QUrl& url) {
        const QString text = url.path(QUrl::FullyDecoded);
        return text.endsWith(QLatin1Char('/')) ? text.chopped(1) : text;
    };
    return a.host().compare(b.host(), Qt::CaseInsensitive) == 0 && a.port(443) == b.port(443) &&
           path(a) == path(b);
}

} // namespace

WebQuickContent::WebQuickContent(const NagContext& context, const QUrl& fallbackUrl,
                                 ContentEnvironment environment, QObject* parent)
    : QmlContent(context, std::move(environment), parent), m_fallbackUrl(fallbackUrl),
      m_timeout(new QTimer(this))
{
    m_timeout->setSingleShot(true);
    connect(m_timeout, &QTimer::timeout, this, [this]() {
        if (State() != ContentState::Loading)
            return;
        if (QQuickItem* shell = view()->rootObject())
            shell->setProperty("nagUrl", QUrl());
        fail("no answer from " + Util::QStringToUtf8(m_source.toString()) + " in time");
    });
}

WebQuickContent::~WebQuickContent() = default;

QUrl WebQuickContent::SourceUrl() const
{
    return m_source;
}

QUrl WebQuickContent::LocalUrl() const
{
    return m_source;
}

QString WebQuickContent::Type() const
{
    const QQuickItem* item = nagItem();
    const QString type = item ? item->property("nag_type").toString() : QString();
    return type.isEmpty() ? QStringLiteral("web") : type;
}

QQuickItem* WebQuickContent::nagItem() const
{
    const QQuickItem* shell = view()->rootObject();
    return shell ? shell->property("nagItem").value<QQuickItem*>() : nullptr;
}

void WebQuickContent::Load()
{
    const auto& generator = environment().urlGenerator;
    if (!generator) {
        start(m_fallbackUrl);
        return;
    }
    const QUrl request = generator->Generate(GetContext());
    start(m_fallbackUrl.isEmpty() || sameEndpoint(m_fallbackUrl, request) ? request : m_fallbackUrl);
}

QString WebQuickContent::ReportedId() const
{
    const QQuickItem* item = State() == ContentState::Ready ? nagItem() : nullptr;
    return item ? item->property("nag_id").toString() : QString();
}

void WebQuickContent::LoadFromPath(const QString& path)
{
    start(path.startsWith(QLatin1String(":/")) ? QUrl(QLatin1String("qrc") + path)
                                               : QUrl::fromLocalFile(path));
}

void WebQuickContent::start(const QUrl& url)
{
    m_source = url;
    setState(ContentState::Loading);
    if (!url.isValid() || url.isEmpty()) {
        fail("the web nag has no address");
        return;
    }
    if (!view()->rootObject()) {
        view()->setSource(QUrl(QStringLiteral("qrc:/NagScreen/common/WebNagShell.qml")));
        QQuickItem* shell = view()->rootObject();
        if (!shell) {
            fail("the web nag shell does not load");
            return;
        }
        connect(shell, SIGNAL(statusChanged()), this, SLOT(onShellStatus()));
    }
    allowOwnFolder(url);
    m_timeout->start(environment().webTimeoutMs);
    view()->rootObject()->setProperty("nagUrl", url);
}

void WebQuickContent::onShellStatus()
{
    const QQuickItem* shell = view()->rootObject();
    const QString status = shell ? shell->property("loadStatus").toString() : QString();
    if (status == QLatin1String("ready") && State() != ContentState::Ready) {
        m_timeout->stop();
        adoptNagItem();
    } else if (status == QLatin1String("error") && State() == ContentState::Loading) {
        m_timeout->stop();
        fail("cannot load " + Util::QStringToUtf8(m_source.toString()) + ": " +
             Util::QStringToUtf8(shell->property("loadError").toString()));
    }
}

} // namespace Ostrel::App::NagScreen
