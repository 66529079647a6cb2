#include "App/Application/NagScreen/NagScreenTestForm.h"

#include "Nag/IManager.h"
#include "Nag/NagConfig.h"
#include "Nag/NagContext.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QIcon>
#include <QImage>
#include <QLabel>
#include <QMessageBox>
#include <QPainter>
#include <QPixmap>
#include <QProgressBar>
#include <QPushButton>
#include <QSet>
#include <QSettings>
#include <QVBoxLayout>

#include <algorithm>
#include <array>

namespace Ostrel::App::NagScreen {

namespace {

enum class Shape
{
    Ring,
    Disc,
    Frame,
    Square,
};

QIcon makeIcon(Shape shape, const QColor& color)
{
    QImage image(14, 14, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(color);
    const QRect outer = image.rect();
    const QRect inner = outer.adjusted(4, 4, -4, -4);
    const bool round = shape == Shape::Ring || shape == Shape::Disc;
    if (round)
        painter.drawEllipse(outer);
    else
        painter.drawRect(outer);
    if (shape == Shape::Ring || shape == Shape::Frame) {
        painter.setCompositionMode(QPainter::CompositionMode_Clear);
        if (round)
            painter.drawEllipse(inner);
        else
            painter.drawRect(inner);
    }
    painter.end();
    return QIcon(QPixmap::fromImage(image));
}

QString settingsApplication()
{
    return QStringLiteral("TestNagHelper");
}

QString lastPathKey()
{
    return QStringLiteral("last_path");
}

QString differing(const QString& character)
{
    return QStringLiteral("<span style='color:red;'>%1</span>").arg(character);
}

} // namespace

class NagScreenTestForm::Impl
{
public:
    explicit Impl(const Core::NotNull<std::shared_ptr<IManager>>& managerIn) : manager(managerIn) {}

    QComboBox* comboBox = nullptr;
    QPushButton* showButton = nullptr;
    QPushButton* customPathButton = nullptr;
    QPushButton* reloadButton = nullptr;
    QLabel* stateLabel = nullptr;
    QProgressBar* progressBar = nullptr;
    QLabel* hashLabel = nullptr;

    QString currentAction;
    std::shared_ptr<IManager::NagHashSetter> hashSetter;
    Core::NotNull<std::shared_ptr<IManager>> manager;
    QMap<QString, QString> overrides;
    std::array<QIcon, 4> icons;
    QString lastPath;
    bool reloading = false;
    QSet<QString> pending;
    QSet<QString> reloadActions;
};

NagScreenTestForm::NagScreenTestForm(const Core::NotNull<std::shared_ptr<IManager>>& manager, QWidget* parent)
    : QWidget(parent), d(std::make_unique<Impl>(manager))
{
    setWindowTitle(tr("Nag Screen Tester"));

    d->comboBox = new QComboBox(this);
    d->comboBox->setObjectName(QStringLiteral("chooseNag_comboBox"));
    d->comboBox->setIconSize(QSize(14, 14));
    d->showButton = new QPushButton(tr("Show Nag"), this);
    d->showButton->setObjectName(QStringLiteral("showNag_button"));
    d->customPathButton = new QPushButton(tr("Set Path To Nag"), this);
    d->customPathButton->setObjectName(QStringLiteral("chooseCustomPath_button"));
    d->reloadButton = new QPushButton(tr("Reload All"), this);
    d->reloadButton->setObjectName(QStringLiteral("reloadAllNags_button"));

    d->stateLabel = new QLabel(this);
    d->stateLabel->setObjectName(QStringLiteral("currentActionState_label"));
    d->stateLabel->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    d->stateLabel->setStyleSheet(QStringLiteral("QLabel { font-size: 12px; background: #0f0f0f; color: "
                                                "#f5f5f5; padding: 3px; border-radius: 4px; }"));

    d->progressBar = new QProgressBar(this);
    d->progressBar->setObjectName(QStringLiteral("nagReload_progressBar"));
    d->progressBar->hide();
    d->progressBar->setTextVisible(true);
    d->progressBar->setAlignment(Qt::AlignCenter);
    d->progressBar->setFormat(tr("Reloading: %v/%m"));
    d->progressBar->setStyleSheet(QStringLiteral(
        "QProgressBar { font-size: 12px; min-height: 23px; max-height: 23px; background: #0f0f0f; color: "
        "#f5f5f5; "
        "border-radius: 4px; } QProgressBar::chunk { background-color: #415bdc; border-radius: 4px; }"));

    d->hashLabel = new QLabel(this);
    d->hashLabel->setObjectName(QStringLiteral("hash_label"));
    d->hashLabel->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    d->hashLabel->setStyleSheet(QStringLiteral("color:black;"));
    d->hashLabel->setText(tr("The hash will appear after opening the nag and if SendNagHashEvent is enabled "
                             "in the webconfig and hashName is specified in the nag"));

    auto* layout = new QVBoxLayout(this);
    auto* chooseRow = new QHBoxLayout;
    chooseRow->addWidget(d->comboBox);
    chooseRow->addWidget(d->showButton);
    chooseRow->addWidget(d->customPathButton);
    chooseRow->addWidget(d->reloadButton);
    auto* stateRow = new QHBoxLayout;
    stateRow->addWidget(d->stateLabel);
    stateRow->addWidget(d->progressBar);
    layout->addLayout(chooseRow);
    layout->addLayout(stateRow);
    layout->addWidget(d->hashLabel);

    d->icons = {makeIcon(Shape::Ring, QColor(QStringLiteral("#d95963"))),
                makeIcon(Shape::Disc, QColor(QStringLiteral("#a0d039"))),
                makeIcon(Shape::Frame, QColor(QStringLiteral("#c762d0"))),
                makeIcon(Shape::Square, QColor(QStringLiteral("#dcaf18")))};

    connect(d->comboBox, &QComboBox::currentTextChanged, this, [this](const QString& text) {
        d->currentAction = text;
        updateCurrentActionStateLabel();
    });
    connect(d->showButton, &QPushButton::clicked, this, [this]() { showNag(); });
    connect(d->customPathButton, &QPushButton::clicked, this, [this]() { chooseCustomPath(); });
    connect(d->reloadButton, &QPushButton::clicked, this, [this]() { reloadAll(); });

    loadNagActions();
    d->lastPath = QSettings(QCoreApplication::organizationName(), settingsApplication())
                      .value(lastPathKey(), QString())
                      .toString();
    d->manager->AddObserver(this);
}

NagScreenTestForm::~NagScreenTestForm()
{
    d->manager->RemoveObserver(this);
    if (d->hashSetter)
        d->hashSetter->UnregisterEventHandler(this);
}

void NagScreenTestForm::onNagAvailable(const QString& action, bool available)
{
    updateNagReloadProgress(action);
    updateActionItem(action, available);
    if (action == d->currentAction)
        updateCurrentActionStateLabel();
}

void NagScreenTestForm::onNagDontShow(const QString&, bool) {}

void NagScreenTestForm::onSkipUpdate(const QString&, bool) {}

void NagScreenTestForm::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    d->progressBar->setFixedWidth(d->reloadButton->width());
}

void NagScreenTestForm::loadNagActions()
{
    const QString remembered = d->comboBox->currentText();
    d->comboBox->blockSignals(true);
    d->comboBox->clear();

    QStringList actions;
    if (const auto config = d->manager->GetNagConfig()) {
        for (const auto& row : config->ActionsForMode(d->manager->GetAppMode()))
            actions.append(row.first);
        for (const auto& row : config->ActionsForMode(AppMode::AnyMode()))
            actions.append(row.first);
    }
    actions.removeDuplicates();
    std::sort(actions.begin(), actions.end());
    for (const QString& action : qAsConst(actions)) {
        d->reloadActions.insert(action);
        d->comboBox->addItem(action, action);
        updateActionItem(action);
    }

    if (!remembered.isEmpty() && d->comboBox->findText(remembered) >= 0)
        d->comboBox->setCurrentIndex(d->comboBox->findText(remembered));
    d->comboBox->blockSignals(false);
    // Signals were off: the current action follows the selection by hand.
    d->currentAction = d->comboBox->currentText();
    updateCurrentActionStateLabel();
}

void NagScreenTestForm::showNag()
{
    const QString action = d->currentAction;
    if (d->manager->IsNagDisabled(action)) {
        QMessageBox::warning(this, tr("Nag Override Warning"),
                             tr("<b>Note:</b> Nag action \"%1\" is currently <b>disabled</b>. Nag will not "
                                "be displayed.")
                                 .arg(action),
                             QMessageBox::Ok);
        return;
    }
    const auto override = d->overrides.constFind(action);
    if (override != d->overrides.cend()) {
        d->manager->OverrideNagPath(action, *override);
        if (!d->manager->IsNagAvailable(action)) {
            QMessageBox::critical(this, tr("Nag Override Error"),
                                  tr("<b>Error:</b> Looks like nag is broken somehow, see logs for "
                                     "details.<br><br>Nag action: %1<br>File:<br><nobr>\"%2\"</nobr>")
                                      .arg(action, QDir::toNativeSeparators(*override)));
            return;
        }
    }
    d->manager->ShowNag(action);
    if (d->hashSetter)
        d->hashSetter->UnregisterEventHandler(this);
    d->hashSetter = d->manager->GetNagHashSetter();
    if (!d->hashSetter)
        return;
    if (d->hashSetter->IsSet())
        onSet();
    else
        d->hashSetter->RegisterEventHandler(this);
}

void NagScreenTestForm::chooseCustomPath()
{
    const QString action = d->currentAction;
    if (action == AppAction::OpenNag()) {
        QMessageBox::warning(this, tr("Nag Override Warning"),
                             tr("Overriding of %1 is not implemented for now, please choose another nag "
                                "and try again.")
                                 .arg(action));
        return;
    }
    const QString file =
        QFileDialog::getOpenFileName(this, tr("Choose main.qml file"), d->lastPath,
                                     tr("main.qml file (main.qml);;Any QML file (*.qml);;Any file (*)"));
    if (file.isEmpty())
        return;
    d->lastPath = QFileInfo(file).absolutePath();
    QSettings(QCoreApplication::organizationName(), settingsApplication())
        .setValue(lastPathKey(), d->lastPath);
    d->overrides[action] = file;
    d->manager->OverrideNagPath(action, file);
    updateCurrentActionStateLabel();
}

void NagScreenTestForm::reloadAll()
{
    d->overrides.clear();
    loadNagActions();
    startNagReloadProgress();
    d->manager->ReloadNags("REASON_UNKNOWN");
}

void NagScreenTestForm::startNagReloadProgress()
{
    d->pending = d->reloadActions;
    d->reloading = true;
    updateNagReloadProgress(QString());
    d->progressBar->repaint();
}

void NagScreenTestForm::updateNagReloadProgress(const QString& action)
{
    if (!d->reloading)
        return;
    if (!action.isEmpty())
        d->pending.remove(action);
    if (!d->pending.isEmpty()) {
        const int maximum = d->reloadActions.size();
        d->progressBar->setMaximum(maximum);
        d->progressBar->setValue(maximum - d->pending.size());
        d->progressBar->show();
    } else {
        d->reloading = false;
        d->progressBar->hide();
    }
}

void NagScreenTestForm::updateActionItem(const QString& action)
{
    updateActionItem(action, d->manager->IsNagAvailable(action));
}

void NagScreenTestForm::updateActionItem(const QString& action, bool available)
{
    const int index = d->comboBox->findData(action, Qt::UserRole, Qt::MatchExactly | Qt::MatchCaseSensitive);
    if (index < 0)
        return;
    const int icon = (d->overrides.contains(action) ? 2 : 0) + (available ? 1 : 0);
    d->comboBox->setItemIcon(index, d->icons.at(static_cast<std::size_t>(icon)));
}

void NagScreenTestForm::updateCurrentActionStateLabel()
{
    const QString& action = d->currentAction;
    QString text;
    if (!d->manager->IsNagAvailable(action))
        text = tr("<b style=\"color: #d95963;\">Unavailable</b> ");
    const auto override = d->overrides.constFind(action);
    text += override != d->overrides.cend() ? QDir::toNativeSeparators(*override) : tr("static or web nag");
    d->stateLabel->setText(text);
}

void NagScreenTestForm::onSet()
{
    if (!d->hashSetter)
        return;
    if (const auto hash = d->hashSetter->get())
        updateLabel(*hash);
    d->hashSetter->UnregisterEventHandler(this);
}

void NagScreenTestForm::updateLabel(const IManager::NagHash& hash)
{
    QString internal = hash.internalHash;
    QString computed = hash.computedHash;
    const bool comparable = !internal.isEmpty() && !computed.isEmpty();
    QString distanceText = tr("some hash is empty, it is impossible to calculate the distance");
    QString percentText = distanceText;
    if (comparable) {
        QString markedInternal;
        QString markedComputed;
        int distance = 0;
        for (int i = 0; i < hash.internalHash.size(); ++i) {
            const QString mine = hash.internalHash.mid(i, 1);
            const QString theirs = hash.computedHash.mid(i, 1);
            if (mine != theirs) {
                ++distance;
                markedInternal += differing(mine);
                if (!theirs.isEmpty())
                    markedComputed += differing(theirs);
            } else {
                markedInternal += mine;
                markedComputed += theirs;
            }
        }
        // A computed hash longer than the stored one keeps its tail as it is.
        markedComputed += hash.computedHash.mid(hash.internalHash.size());
        internal = markedInternal;
        computed = markedComputed;
        distanceText = QString::number(distance);
        percentText = QString::number(distance * 100.0 / hash.computedHash.size(), 'g', 6) + QLatin1Char('%');
    }
    const bool sized = hash.hashSize.isValid();
    const QString noSize = tr("hashSize is not specified in the nag");
    const QString text =
        QStringLiteral(
            "<table><tr><td>hashName:</td>      <td>%1</td></tr><tr><td>hashWidth:</td>      <td>%2</td></tr>"
            "<tr><td>hashHeight:</td>     <td>%3</td></tr><tr><td>inNagHash:</td>      <td>%4</td></tr>"
            "<tr><td>computedNagHash:</td><td>%5</td></tr><tr><td>distance:</td>       <td>%6</td></tr>"
            "<tr><td>distance (%):</td>   <td>%7</td></tr></table>")
            .arg(hash.hashName.isEmpty() ? tr("add hashName to nag to calculate hash") : hash.hashName,
                 sized ? QString::number(hash.hashSize.width()) : noSize,
                 sized ? QString::number(hash.hashSize.height()) : noSize, internal, computed, distanceText,
                 percentText);
    d->hashLabel->setText(text);
}

} // namespace Ostrel::App::NagScreen
