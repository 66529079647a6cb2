#include "Email/EmailDialog_p.h"

#include "Foundation/Utf8.h"
#include "Interfaces/ICustomizationManager.h"
#include "Interfaces/ILinksManager.h"
#include "Interfaces/IMailSettingsManager.h"

#include <glog/logging.h>

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpression>
#include <QVBoxLayout>

namespace Ostrel::App {

class EmailDialog::Impl
{
public:
    std::shared_ptr<IMailSettingsManager> settings;
    std::shared_ptr<ILinksManager> links;
    QLineEdit* name = nullptr;
    QLineEdit* email = nullptr;
    QCheckBox* newsletter = nullptr;
    QLabel* error = nullptr;
};

EmailDialog::EmailDialog(const std::shared_ptr<IMailSettingsManager>& settings,
                         const std::shared_ptr<ILinksManager>& links,
                         const std::shared_ptr<ICustomizationManager>& customization, QWidget* parent)
    : AbstractEmailDialog(parent), d(std::make_unique<Impl>())
{
    d->settings = settings;
    d->links = links;
    const QString product =
        customization ? Util::Utf8ToQString(customization->GetPresentableName()) : QString();

    setObjectName(QStringLiteral("EmailDialog"));
    setWindowTitle(tr("Stay in touch"));
    setModal(true);

    auto* intro = new QLabel(
        product.isEmpty()
            ? tr("Leave your e-mail address to hear about new features and offers.")
            : tr("Leave your e-mail address to hear about new features and offers of %1.").arg(product),
        this);
    intro->setWordWrap(true);

    d->name = new QLineEdit(Util::Utf8ToQString(settings->GetString("UserName", std::string())), this);
    d->name->setObjectName(QStringLiteral("nameEdit"));
    d->name->setPlaceholderText(tr("Your name"));
    d->email = new QLineEdit(Util::Utf8ToQString(settings->GetString("UserEmail", std::string())), this);
    d->email->setObjectName(QStringLiteral("emailEdit"));
    d->email->setPlaceholderText(tr("name@example.com"));

    d->newsletter = new QCheckBox(tr("Yes, send me news and special offers by e-mail"), this);
    d->newsletter->setObjectName(QStringLiteral("newsletterCheck"));
    d->newsletter->setChecked(true);

    d->error = new QLabel(this);
    d->error->setObjectName(QStringLiteral("errorLabel"));
    d->error->setStyleSheet(QStringLiteral("color: #c0392b;"));
    d->error->hide();
    connect(d->email, &QLineEdit::textEdited, d->error, &QLabel::hide);

    auto* privacy =
        new QLabel(tr("We never share your address. <a href=\"privacy\">Privacy policy</a>"), this);
    privacy->setObjectName(QStringLiteral("privacyLabel"));
    privacy->setTextInteractionFlags(Qt::LinksAccessibleByMouse | Qt::LinksAccessibleByKeyboard);
    privacy->setVisible(links != nullptr);
    connect(privacy, &QLabel::linkActivated, this, [this]() {
        if (d->links)
            d->links->OpenUrl(URLKeys::PRIVACY_POLICY_URL);
    });

    auto* buttons = new QDialogButtonBox(this);
    QPushButton* subscribe = buttons->addButton(tr("Subscribe"), QDialogButtonBox::AcceptRole);
    subscribe->setObjectName(QStringLiteral("subscribeButton"));
    subscribe->setDefault(true);
    buttons->addButton(tr("Not now"), QDialogButtonBox::RejectRole)
        ->setObjectName(QStringLiteral("cancelButton"));
    connect(buttons, &QDialogButtonBox::accepted, this, &EmailDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &EmailDialog::reject);

    auto* form = new QFormLayout;
    form->addRow(tr("Name:"), d->name);
    form->addRow(tr("E-mail:"), d->email);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(intro);
    layout->addLayout(form);
    layout->addWidget(d->error);
    layout->addWidget(d->newsletter);
    layout->addWidget(privacy);
    layout->addWidget(buttons);
    setMinimumWidth(420);
}

EmailDialog::~EmailDialog() = default;

int EmailDialog::ShowModal()
{
    return exec();
}

bool EmailDialog::IsValidAddress(const QString& address)
{
    static const QRegularExpression pattern(QStringLiteral("^[^@\\s]+@[^@\\s.]+(\\.[^@\\s.]+)+$"));
    return pattern.match(address).hasMatch();
}

void EmailDialog::accept()
{
    const QString address = d->email->text().trimmed();
    if (!IsValidAddress(address)) {
        d->error->setText(tr("Please enter a valid e-mail address."));
        d->error->show();
        adjustSize(); // room for the message, rather than squeezing the fields
        d->email->setFocus();
        return;
    }
    d->settings->SetString("UserName", Util::QStringToUtf8(d->name->text().trimmed()));
    d->settings->SetString("UserEmail", Util::QStringToUtf8(address));
    // Without consent the address stays on this machine: only a confirmed address is sent.
    d->settings->SetString("isConfirmed", d->newsletter->isChecked() ? "1" : "0");
    QDialog::accept();
}

void EmailDialog::reject()
{
    d->settings->SetString("isConfirmed", "0");
    QDialog::reject();
}

} // namespace Ostrel::App
