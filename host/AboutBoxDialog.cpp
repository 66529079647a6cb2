#include "AboutBoxDialog.h"

#include <QCoreApplication>
#include <QDate>
#include <QEvent>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace Ostrel::App {

class AboutBoxDialog::Impl
{
public:
    QString name;
    QLabel* version = nullptr;
    QLabel* copyright = nullptr;
    QLabel* rights = nullptr;
    QLabel* link = nullptr;
    QPushButton* close = nullptr;
};

AboutBoxDialog::AboutBoxDialog(const QString& presentableName, const std::function<void()>& openHomePage,
                               QWidget* parent)
    : QDialog(parent), d(std::make_unique<Impl>())
{
    d->name = presentableName;
    setObjectName(QStringLiteral("aboutBox"));
    // The class's style paints the background: a plain QDialog subclass needs this to show it.
    setAttribute(Qt::WA_StyledBackground);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);

    // The picture is drawn at twice its size: 720 x 160 pixels fill 360 x 80 points.
    auto* top = new QWidget(this);
    top->setObjectName(QStringLiteral("topPlaceHolder"));
    top->setAttribute(Qt::WA_StyledBackground);
    top->setFixedSize(360, 80);
    layout->addWidget(top);

    auto* bottom = new QWidget(this);
    bottom->setObjectName(QStringLiteral("bottomPlaceHolder"));
    bottom->setAttribute(Qt::WA_StyledBackground);
    auto* texts = new QVBoxLayout(bottom);
    texts->setContentsMargins(20, 16, 20, 16);
    texts->setSpacing(6);
    auto* title = new QLabel(presentableName, bottom);
    title->setObjectName(QStringLiteral("applicationNameLabel"));
    QFont font = title->font();
    font.setPointSizeF(font.pointSizeF() * 1.5);
    font.setBold(true);
    title->setFont(font);
    title->setStyleSheet(QStringLiteral("color: #ffffff;"));
    texts->addWidget(title);
    d->version = new QLabel(bottom);
    d->version->setObjectName(QStringLiteral("applicationVersionLabel"));
    d->version->setTextInteractionFlags(Qt::TextSelectableByMouse);
    texts->addWidget(d->version);
    d->copyright = new QLabel(bottom);
    d->copyright->setObjectName(QStringLiteral("copyrightLabel"));
    texts->addWidget(d->copyright);
    d->rights = new QLabel(bottom);
    d->rights->setObjectName(QStringLiteral("rightsLabel"));
    texts->addWidget(d->rights);
    d->link = new QLabel(bottom);
    d->link->setObjectName(QStringLiteral("linkLabel"));
    d->link->setTextInteractionFlags(Qt::LinksAccessibleByMouse | Qt::LinksAccessibleByKeyboard);
    connect(d->link, &QLabel::linkActivated, this, [openHomePage]() {
        if (openHomePage)
            openHomePage();
    });
    texts->addWidget(d->link);
    texts->addSpacing(8);
    d->close = new QPushButton(bottom);
    d->close->setDefault(true);
    connect(d->close, &QPushButton::clicked, this, &QDialog::accept);
    texts->addWidget(d->close, 0, Qt::AlignRight);
    layout->addWidget(bottom);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    retranslate();
}

AboutBoxDialog::~AboutBoxDialog() = default;

void AboutBoxDialog::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QDialog::changeEvent(event);
}

void AboutBoxDialog::retranslate()
{
    setWindowTitle(tr("About %1").arg(d->name));
    d->version->setText(tr("Version %1").arg(QCoreApplication::applicationVersion()));
    d->copyright->setText(
        tr("Copyright © %1 %2").arg(QDate::currentDate().year()).arg(QCoreApplication::organizationName()));
    d->rights->setText(tr("All rights reserved."));
    // The colour comes from the style; a link's own colour would override it.
    d->link->setText(
        QStringLiteral("<a href=\"home\" style=\"color: #58e47b;\">%1</a>").arg(tr("Home page")));
    d->close->setText(tr("Close"));
}

} // namespace Ostrel::App
