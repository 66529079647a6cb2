#include "App/Application/NagScreen/DialogStrategy.h"

#include "App/Application/NagScreen/ColorDimmer.h"
#include "App/Application/NagScreen/DimmingProvider.h"
#include "App/Application/NagScreen/ExpandFilePathParameters.h"
#include "App/Application/NagScreen/GifDimmer.h"
#include "App/Application/NagScreen/ParseDimmingParameters.h"
#include "App/Application/NagScreen/QmlWindowFocus_p.h"
#include "App/Application/NagScreen/ShadowDimmer.h"
#include "Foundation/Utf8.h"
#include "Nag/AbstractContent.h"
#include "Nag/INagsSettings.h"
#include "QtUtil/SpontaneousDialog.h"

#include <boost/scope_exit.hpp>

#include <QAccessible>
#include <QApplication>
#include <QDialog>
#include <QHBoxLayout>
#include <QScreen>
#include <QWindow>

#include <algorithm>
#include <cmath>

namespace Ostrel::App::NagScreen {

class DialogStrategy::Impl
{
public:
    Qt::WindowFlags defaultFlags = Qt::Dialog | Qt::FramelessWindowHint;
    std::weak_ptr<WebConfig::INagsSettings> settings;
    std::shared_ptr<DimmingProvider> provider;
};

DialogStrategy::DialogStrategy(const std::weak_ptr<WebConfig::INagsSettings>& settings)
    : d(std::make_unique<Impl>())
{
    d->settings = settings;
    d->provider = std::make_shared<DimmingProvider>();
    d->provider->Add(QStringLiteral("color"), std::make_shared<ColorDimmer>(nullptr, nullptr));
    d->provider->Add(QStringLiteral("shadow"), std::make_shared<ShadowDimmer>(nullptr, nullptr));
    d->provider->Add(QStringLiteral("gif"), std::make_shared<GifDimmer>(nullptr, nullptr));
}

DialogStrategy::~DialogStrategy() = default;

DialogStrategy::DialogStrategy(const DialogStrategy& other) : d(std::make_unique<Impl>(*other.d)) {}

DialogStrategy::DialogStrategy(DialogStrategy&& other) noexcept
    : d(std::make_unique<Impl>(std::move(*other.d)))
{
}

DialogStrategy& DialogStrategy::operator=(const DialogStrategy& other)
{
    *d = *other.d;
    return *this;
}

DialogStrategy& DialogStrategy::operator=(DialogStrategy&& other) noexcept
{
    *d = std::move(*other.d);
    return *this;
}

Qt::WindowFlags DialogStrategy::GetDefaultWindowFlags() const
{
    return d->defaultFlags;
}

void DialogStrategy::SetDefaultWindowFlags(Qt::WindowFlags flags)
{
    d->defaultFlags = flags;
}

std::shared_ptr<DimmingProvider> DialogStrategy::GetDimmingProvider() const
{
    return d->provider;
}

QWidget* DialogStrategy::ParentFor(const NagContext&) const
{
    if (QWidget* modal = QApplication::activeModalWidget())
        return modal;
    return Util::SpontaneousDialog::GetMainWindow();
}

Qt::WindowFlags DialogStrategy::WindowFlagsFor(const NagContext&) const
{
    return d->defaultFlags;
}

void DialogStrategy::LocateDialog(QDialog* dialog, const QSize& size) const
{
    if (!dialog || !dialog->parentWidget())
        return;
    const QWidget* parent = dialog->parentWidget();
    // A nag larger than its window would hang over the window's edges anyway: it is centred on
    // the window's screen instead. Either way it stays on that screen, top-left first when it is
    // larger than the screen.
    const QScreen* screen = parent->screen();
    const QRect area = screen ? screen->availableGeometry() : QRect();
    const bool fits = size.width() <= parent->width() && size.height() <= parent->height();
    const QPoint center =
        fits || area.isEmpty() ? parent->mapToGlobal(parent->rect().center()) : area.center();
    int x = static_cast<int>(std::trunc(center.x() - std::trunc(size.width() * 0.5)));
    int y = static_cast<int>(std::trunc(center.y() - std::trunc(size.height() * 0.5)));
    if (!area.isEmpty()) {
        x = std::max(area.left(), std::min(x, area.left() + area.width() - size.width()));
        y = std::max(area.top(), std::min(y, area.top() + area.height() - size.height()));
    }
    dialog->move(x, y);
}

int DialogStrategy::ShowNag(AbstractContent& content)
{
    const NagContext context = content.GetContext();
    QWidget* parent = ParentFor(context);
    const Qt::WindowFlags flags = WindowFlagsFor(context);

    QDialog dialog(parent, flags);
    dialog.setObjectName(QStringLiteral("WebNag"));
    dialog.setAttribute(Qt::WA_TranslucentBackground);
    dialog.setProperty("AppAction", content.AppAction());

    QSizePolicy policy(QSizePolicy::Minimum, QSizePolicy::Minimum, QSizePolicy::DefaultType);
    policy.setHorizontalStretch(0);
    policy.setVerticalStretch(0);
    policy.setHeightForWidth(dialog.sizePolicy().hasHeightForWidth());
    dialog.setSizePolicy(policy);
    dialog.setWindowTitle(QString());
    dialog.setModal(true);

    auto* layout = new QHBoxLayout(&dialog);
    layout->setSpacing(0);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setObjectName(QStringLiteral("horizontalLayout"));

    // By name: the QML contents live in the nag library's Qt Quick half, which the shell does not
    // link (it is loaded with the first nag).
    if (content.inherits("Ostrel::App::NagScreen::QmlContent"))
        ApplyQmlWindowFocusWorkaround(&dialog, content.GetUi());

    // The content owns its widget: it must leave the dialog before the dialog's destructor would
    // delete it, also when something throws.
    QWidget* ui = content.GetUi();
    layout->addWidget(ui);
    // The window is frameless and untitled: a screen reader announces it by the nag's own name.
    if (QAccessibleInterface* nag = QAccessible::queryAccessibleInterface(ui); nag && nag->childCount() > 0)
        dialog.setAccessibleName(nag->child(0)->text(QAccessible::Name));
    BOOST_SCOPE_EXIT_ALL(&layout, ui)
    {
        layout->removeWidget(ui);
        ui->setParent(nullptr);
    };

    QObject::connect(&content, &AbstractContent::Finished, &dialog,
                     [&dialog](int code) { dialog.done(code); });
    const auto relocate = [this, &dialog, ui]() {
        dialog.adjustSize();
        LocateDialog(&dialog, ui->size());
    };
    QObject::connect(&content, &AbstractContent::SizeChanged, &dialog, relocate);
    relocate();
    // The window under the nag may still be placed by the window manager (a nag asked for at once
    // after the window shows), or be moved while the nag is up: the nag follows it.
    if (QWindow* window = parent ? parent->window()->windowHandle() : nullptr) {
        for (const auto changed :
             {&QWindow::xChanged, &QWindow::yChanged, &QWindow::widthChanged, &QWindow::heightChanged})
            QObject::connect(window, changed, &dialog, relocate);
    }

    QString name = content.DimmingName();
    QMap<QString, QString> parameters = content.DimmingParameters();
    if (const auto settings = d->settings.lock(); settings && name.isEmpty()) {
        name = Util::Utf8ToQString(settings->nagDimmingName());
        parameters = ParseDimmingParameters(Util::Utf8ToQString(settings->nagDimmingParameters()));
    }
    ExpandFilePathParameters(*d->provider, content, parameters);
    const std::shared_ptr<BaseDimmer> dimmer = d->provider->Get(name);
    if (dimmer)
        dimmer->SetParameters(parameters);

    if (dimmer) {
        dimmer->Attach(parent, &dialog);
        dimmer->show();
        dimmer->raise();
    }
    BOOST_SCOPE_EXIT_ALL(&dimmer)
    {
        if (dimmer) {
            dimmer->hide();
            dimmer->Attach(nullptr, nullptr);
        }
    };

    // The parent may go while the nag is up. The dialog (on this stack) and the dimmer (owned by
    // the provider) are its children, and it would delete both: they leave it first, which it
    // tells before it deletes its children, and the nag ends as rejected.
    if (parent) {
        QObject::connect(parent, &QObject::destroyed, &dialog, [&dialog, &dimmer]() {
            if (dimmer)
                dimmer->Attach(nullptr, nullptr);
            dialog.setParent(nullptr, dialog.windowFlags());
            dialog.reject();
        });
    }

    const int code = dialog.exec();
    return code == 0 ? 2 : code;
}

} // namespace Ostrel::App::NagScreen
