#include "App/Application/ConfirmationAlertBox.h"

#include "Foundation/Utf8.h"
#include "Interfaces/IApplicationSettingsManager.h"

#include <boost/format.hpp>

#include <QCheckBox>
#include <QDialogButtonBox>

namespace Ostrel::App {

class ConfirmationAlertBox::Impl
{
public:
    std::shared_ptr<IApplicationSettingsManager> m_settings;
    QString m_confirmationId;
    QCheckBox* m_dontConfirmCheckBox = nullptr;
    bool m_rememberOnReject = false;
    QMessageBox::StandardButtons m_rememberOnly;
    bool m_forceSaveAnswer = false;
    int m_forcedAnswer = 0;
};

ConfirmationAlertBox::ConfirmationAlertBox(std::shared_ptr<IApplicationSettingsManager> settings,
                                           Util::AlertBox::Level level, const QString& title,
                                           const QString& text, QMessageBox::StandardButtons buttons,
                                           QWidget* parent, Qt::WindowFlags flags)
    : AlertBox(level, title, text, buttons, parent, flags), d(std::make_unique<Impl>())
{
    d->m_settings = std::move(settings);
    d->m_dontConfirmCheckBox = new QCheckBox(this);
    d->m_dontConfirmCheckBox->setObjectName(QStringLiteral("dontConfirmCheckBox"));
    d->m_dontConfirmCheckBox->setText(tr("Don't show this again"));
    setCheckBox(d->m_dontConfirmCheckBox);
}

ConfirmationAlertBox::~ConfirmationAlertBox() = default;

QMessageBox::StandardButton ConfirmationAlertBox::Exec()
{
    if (d->m_dontConfirmCheckBox->isChecked())
        return static_cast<QMessageBox::StandardButton>(ReadAnswer());

    const QMessageBox::StandardButton answer = AlertBox::Exec();
    if (!d->m_dontConfirmCheckBox->isChecked())
        return answer;

    auto* buttons = findChild<QDialogButtonBox*>();
    const QDialogButtonBox::ButtonRole role =
        buttons && clickedButton() ? buttons->buttonRole(clickedButton()) : QDialogButtonBox::InvalidRole;
    if (!d->m_rememberOnReject && role == QDialogButtonBox::RejectRole)
        return answer;
    if (d->m_rememberOnly && !(d->m_rememberOnly & answer))
        return answer;

    WriteDontConfirm(true);
    WriteAnswer(answer);
    return answer;
}

void ConfirmationAlertBox::SetConfirmationId(const QString& id)
{
    d->m_confirmationId = id;
    d->m_dontConfirmCheckBox->setChecked(ReadDontConfirm());
}

QString ConfirmationAlertBox::GetConfirmationId() const
{
    return d->m_confirmationId;
}

void ConfirmationAlertBox::SetConfirmationText(const QString& text)
{
    d->m_dontConfirmCheckBox->setText(text);
}

QString ConfirmationAlertBox::GetConfirmationText() const
{
    return d->m_dontConfirmCheckBox->text();
}

void ConfirmationAlertBox::SetDontConfirm(bool dontConfirm)
{
    d->m_dontConfirmCheckBox->setChecked(dontConfirm);
}

bool ConfirmationAlertBox::IsDontConfirm() const
{
    return d->m_dontConfirmCheckBox->isChecked();
}

void ConfirmationAlertBox::SetRememberOnReject(bool remember)
{
    d->m_rememberOnReject = remember;
}

bool ConfirmationAlertBox::RememberOnReject() const
{
    return d->m_rememberOnReject;
}

void ConfirmationAlertBox::SetRememberOnly(QMessageBox::StandardButtons buttons)
{
    d->m_rememberOnly = buttons;
}

QMessageBox::StandardButtons ConfirmationAlertBox::RememberOnly() const
{
    return d->m_rememberOnly;
}

void ConfirmationAlertBox::SetForceSaveAnswer(int answer)
{
    d->m_forceSaveAnswer = true;
    d->m_forcedAnswer = answer;
}

void ConfirmationAlertBox::Reset()
{
    WriteDontConfirm(false);
}

std::string ConfirmationAlertBox::GetSettingKey(const std::string& key) const
{
    return (boost::format("confirm/%1%_%2%") % Util::QStringToUtf8(d->m_confirmationId) % key).str();
}

int ConfirmationAlertBox::ReadAnswer() const
{
    return d->m_settings->GetInt(GetSettingKey("answer"), 0);
}

bool ConfirmationAlertBox::ReadDontConfirm() const
{
    return d->m_settings->GetBool(GetSettingKey("dont_confirm"), false);
}

void ConfirmationAlertBox::WriteAnswer(int answer)
{
    d->m_settings->SetInt(GetSettingKey("answer"), d->m_forceSaveAnswer ? d->m_forcedAnswer : answer);
}

void ConfirmationAlertBox::WriteDontConfirm(bool value)
{
    d->m_settings->SetBool(GetSettingKey("dont_confirm"), value);
}

} // namespace Ostrel::App
