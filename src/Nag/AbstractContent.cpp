#include "Nag/AbstractContent.h"

#include "Nag/IActionStrategy.h"

#include <QPointer>
#include <QWidget>

namespace Ostrel::App::NagScreen {

class AbstractContent::Impl
{
public:
    NagContext context;
    ContentEnvironment environment;
    QPointer<QWidget> ui;
    ContentState state = ContentState::Loading;
    bool finished = false;
};

AbstractContent::AbstractContent(const NagContext& context, ContentEnvironment environment, QObject* parent)
    : QObject(parent), d(std::make_unique<Impl>())
{
    qRegisterMetaType<ContentState>("Ostrel::App::NagScreen::ContentState");
    d->context = context;
    d->environment = std::move(environment);
}

AbstractContent::~AbstractContent()
{
    // The widget is ours even while a strategy borrows it; a strategy that forgot to give it
    // back loses it here rather than deleting it twice.
    delete d->ui.data();
}

QString AbstractContent::AppAction() const
{
    return d->context.action;
}

QString AbstractContent::AppMode() const
{
    return d->context.mode;
}

NagContext AbstractContent::GetContext() const
{
    return d->context;
}

QWidget* AbstractContent::GetUi() const
{
    return d->ui.data();
}

ContentState AbstractContent::State() const
{
    return d->state;
}

void AbstractContent::setUi(QWidget* ui)
{
    delete d->ui.data();
    d->ui = ui;
}

void AbstractContent::setState(ContentState state)
{
    if (d->state == state)
        return;
    d->state = state;
    Q_EMIT StateChanged(state);
}

void AbstractContent::finish(int code, const QMap<QString, QVariant>& params)
{
    if (d->finished)
        return;
    d->finished = true;
    Q_EMIT Finished(code, params);
    if (const auto actions = actionStrategy())
        actions->NagClose(*this, code, params);
}

void AbstractContent::rearmFinish()
{
    d->finished = false;
}

const ContentEnvironment& AbstractContent::environment() const
{
    return d->environment;
}

std::shared_ptr<IActionStrategy> AbstractContent::actionStrategy() const
{
    return d->environment.actionStrategy ? d->environment.actionStrategy() : nullptr;
}

QString AbstractContent::ReportedId() const
{
    return {};
}

} // namespace Ostrel::App::NagScreen
