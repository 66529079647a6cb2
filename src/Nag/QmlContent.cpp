#include "Nag/QmlContent.h"

#include "Foundation/PersonalDataMask.h"
#include "Foundation/Utf8.h"
#include "Nag/DifferenceHash.h"
#include "Nag/NagCallback_p.h"
#include "Nag/NagEngineAccess_p.h"
#include "Nag/NagFonts.h"
#include "Nag/QuickWidgetAccessible_p.h"

#include <glog/logging.h>

#include <QEvent>
#include <QFileInfo>
#include <QQmlContext>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWidget>
#include <QTimer>

namespace Ostrel::App::NagScreen {

namespace {
// The first frame of a shown nag needs a moment: the scene graph renders after the show event.
constexpr int RenderedDelayMs = 150;
} // namespace

class QmlContent::Impl
{
public:
    QQuickWidget* view = nullptr;
    NagCallback* callback = nullptr;
    QMap<QString, QString> dimmingParameters;
    QString fallbackId;
    QString fallbackName;
    QMetaObject::Connection widthConnection;
    QMetaObject::Connection heightConnection;
    std::shared_ptr<NagEngineAccess> access;
};

QmlContent::QmlContent(const NagContext& context, ContentEnvironment environment, QObject* parent)
    : AbstractContent(context, std::move(environment), parent), d(std::make_unique<Impl>())
{
    RegisterNagFonts();
    QuickWidgetAccessible::install();
    d->callback = new NagCallback(*this);
    d->view = new QQuickWidget;
    d->view->setObjectName(QStringLiteral("NagView"));
    d->view->setResizeMode(QQuickWidget::SizeViewToRootObject);
    d->view->setFocusPolicy(Qt::StrongFocus);
    d->view->setAttribute(Qt::WA_AlwaysStackOnTop);
    d->view->setClearColor(Qt::transparent);
    d->access = NagEngineAccess::install(*d->view->engine(), this->environment().access);
    d->view->rootContext()->setContextProperty(QStringLiteral("callback"), d->callback);
    d->view->installEventFilter(this);
    setUi(d->view);

    connect(this, &AbstractContent::AcceptRequested, this,
            [this](const QMap<QString, QVariant>& params) { finish(1, params); });
    connect(this, &AbstractContent::StateChanged, this, [this](ContentState state) {
        // A nag that breaks while on screen must not leave an empty modal window behind.
        if (state == ContentState::Failed && d->view->isVisible())
            QTimer::singleShot(0, this, [this]() { finish(-1, {}); });
    });
}

QmlContent::~QmlContent()
{
    // The view goes first (in the base), while the bridge it refers to still exists.
    delete GetUi();
    delete d->callback;
}

QQuickWidget* QmlContent::view() const
{
    return d->view;
}

void QmlContent::allowOwnFolder(const QUrl& mainQml)
{
    d->access->setOwnFolder(mainQml.isLocalFile() ? QFileInfo(mainQml.toLocalFile()).path() : QString());
}

QQuickItem* QmlContent::nagItem() const
{
    return d->view->rootObject();
}

QVariant QmlContent::nagProperty(const char* name) const
{
    const QQuickItem* item = nagItem();
    return item ? item->property(name) : QVariant();
}

void QmlContent::SetFallbackIdentity(const QString& id, const QString& name)
{
    d->fallbackId = id;
    d->fallbackName = name;
}

QString QmlContent::Id() const
{
    const QString id = nagProperty("nag_id").toString();
    return id.isEmpty() ? d->fallbackId : id;
}

QString QmlContent::Name() const
{
    const QString name = nagProperty("nag_name").toString();
    return name.isEmpty() ? d->fallbackName : name;
}

QString QmlContent::DimmingName() const
{
    return nagProperty("dimming_name").toString();
}

const QMap<QString, QString>& QmlContent::DimmingParameters() const
{
    return d->dimmingParameters;
}

QString QmlContent::Locale() const
{
    return nagProperty("nag_locale").toString();
}

bool QmlContent::HasLocale() const
{
    return !Locale().isEmpty();
}

QString QmlContent::DeclaredHash() const
{
    return nagProperty("nag_hash").toString();
}

QString QmlContent::HashName() const
{
    return nagProperty("hash_name").toString();
}

QSize QmlContent::HashSize() const
{
    const QVariant size = nagProperty("hash_size");
    return size.canConvert<QSizeF>() ? size.toSizeF().toSize() : QSize();
}

QPixmap QmlContent::Picture() const
{
    if (State() != ContentState::Ready)
        return {};
    const QImage image = d->view->grabFramebuffer();
    return image.isNull() ? QPixmap() : QPixmap::fromImage(image);
}

QString QmlContent::ComputedHash() const
{
    if (State() != ContentState::Ready || !HashSize().isValid())
        return {};
    return DifferenceHash(d->view->grabFramebuffer(), HashSize());
}

void QmlContent::adoptNagItem()
{
    QQuickItem* item = nagItem();
    if (!item) {
        fail("the nag has no visual root item");
        return;
    }
    d->dimmingParameters.clear();
    const QVariantMap parameters = item->property("dimming_parameters").toMap();
    for (auto it = parameters.cbegin(); it != parameters.cend(); ++it)
        d->dimmingParameters.insert(it.key(), it.value().toString());

    QObject::disconnect(d->widthConnection);
    QObject::disconnect(d->heightConnection);
    d->widthConnection = connect(item, &QQuickItem::widthChanged, this, &QmlContent::followSize);
    d->heightConnection = connect(item, &QQuickItem::heightChanged, this, &QmlContent::followSize);
    item->setFocus(true);
    rearmFinish();
    followSize();
    setState(ContentState::Ready);
}

void QmlContent::followSize()
{
    const QQuickItem* item = nagItem();
    if (!item)
        return;
    const QSize size(qRound(item->width()), qRound(item->height()));
    if (size.isEmpty())
        return;
    // A fixed size lets the dialog's layout follow the nag both when it grows and when it shrinks.
    d->view->setFixedSize(size);
    Q_EMIT SizeChanged(size);
}

void QmlContent::fail(const std::string& why)
{
    // The reason may quote the nag's address, which may carry what a link filled in.
    LOG(ERROR) << "Nag for action " << Util::QStringToUtf8(AppAction())
               << " failed: " << Core::PersonalDataMask::mask(why);
    setState(ContentState::Failed);
}

bool QmlContent::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == d->view && event->type() == QEvent::Show) {
        if (State() == ContentState::Failed) {
            QTimer::singleShot(0, this, [this]() { finish(-1, {}); });
        } else {
            QTimer::singleShot(RenderedDelayMs, this, [this]() {
                if (State() == ContentState::Ready && d->view->isVisible())
                    Q_EMIT Rendered();
            });
        }
    }
    return AbstractContent::eventFilter(watched, event);
}

} // namespace Ostrel::App::NagScreen
