#include "App/Application/ConfirmationAlertBox.h"

#include "Foundation/Utf8.h"
#include "Interfaces/IApplicationSettingsManager.h"

#include <boost/format.hpp>

#include <QCheckBox>
#include <QDialogButtonBox>

namespace Ostrel::App {

struct ConfirmationAlertBox::Impl
{
    std::shared_ptr<IApplicationSettingsManager> m_settings;
    QString m_confirmationId;
    QCheckBox* m_dontConfirmCheckBox = nullptr;
    bool m_rememberOnReject = false;
    QMessageBox::StandardButtons m_rememberOnly;
    bool m_forceSaveAnswer = false;
    int m_forcedAnswer = 0;
};

ConfirmationAlertBox::ConfirmationAlertBox(std::shared_ptr<IApplicationSettingsManager> settings,
                                           Util::AlertBox::Level level, const QString& title, const QString& text,
                                           QMessageBox::StandardButtons buttons, QWidget* parent,
                                           Qt::WindowFlags flags)
    : AlertBox(level, title, text, buttons, parent, flags)
    , m_impl(std::make_unique<Impl>())
{
    m_impl->m_settings = std::move(settings);
    m_impl->m_dontConfirmCheckBox = new QCheckBox(this);
    m_impl->m_dontConfirmCheckBox->setObjectName(QStringLiteral("dontConfirmCheckBox"));
    m_impl->m_dontConfirmCheckBox->setText(tr("Don't show this again"));
    setCheckBox(m_impl->m_dontConfirmCheckBox);
}

ConfirmationAlertBox::~ConfirmationAlertBox() = default;

QMessageBox::StandardButton ConfirmationAlertBox::Exec()
{
    Impl& d = *m_impl;
    if (d.m_dontConfirmCheckBox->isChecked())
        return static_cast<QMessageBox::StandardButton>(ReadAnswer());

    const QMessageBox::StandardButton answer = AlertBox::Exec();
    if (!d.m_dontConfirmCheckBox->isChecked())
        return answer;

    auto* buttons = findChild<QDialogButtonBox*>();
    const QDialogButtonBox::ButtonRole role =
        buttons && clickedButton() ? buttons->buttonRole(clickedButton()) : QDialogButtonBox::InvalidRole;
    if (!d.m_rememberOnReject && role == QDialogButtonBox::RejectRole)
        return answer;
    if (d.m_rememberOnly && !(d.m_rememberOnly & answer))
        return answer;

    WriteDontConfirm(true);
    WriteAnswer(answer);
    return answer;
}

void ConfirmationAlertBox::SetConfirmationId(const QString& id)
{
    m_impl->m_confirmationId = id;
    m_impl->m_dontConfirmCheckBox->setChecked(ReadDontConfirm());
}

QString ConfirmationAlertBox::GetConfirmationId() const
{
    return m_impl->m_confirmationId;
}

void ConfirmationAlertBox::SetConfirmationText(const QString& text)
{
    m_impl->m_dontConfirmCheckBox->setText(text);
}

QString ConfirmationAlertBox::GetConfirmationText() const
{
    return m_impl->m_dontConfirmCheckBox->text();
}

void ConfirmationAlertBox::SetDontConfirm(bool dontConfirm)
{
    m_impl->m_dontConfirmCheckBox->setChecked(dontConfirm);
}

bool ConfirmationAlertBox::IsDontConfirm() const
{
    return m_impl->m_dontConfirmCheckBox->isChecked();
}

void ConfirmationAlertBox::SetRememberOnReject(bool remember)
{
    m_impl->m_rememberOnReject = remember;
}

bool ConfirmationAlertBox::RememberOnReject() const
{
    return m_impl->m_rememberOnReject;
}

void ConfirmationAlertBox::SetRememberOnly(QMessageBox::StandardButtons buttons)
{
    m_impl->m_rememberOnly = buttons;
}

QMessageBox::StandardButtons ConfirmationAlertBox::RememberOnly() const
{
    return m_impl->m_rememberOnly;
}

void ConfirmationAlertBox::SetForceSaveAnswer(int answer)
{
    m_impl->m_forceSaveAnswer = true;
    m_impl->m_forcedAnswer = answer;
}

void ConfirmationAlertBox::Reset()
{
    WriteDontConfirm(false);
}

std::string ConfirmationAlertBox::GetSettingKey(const std::string& key) const
{
    return (boost::format("confirm/%1%_%2%") % Util::QStringToUtf8(m_impl->m_confirmationId) % key).str();
}

int ConfirmationAlertBox::ReadAnswer() const
{
    return m_impl->m_settings->GetInt(GetSettingKey("answer"), 0);
}

bool ConfirmationAlertBox::ReadDontConfirm() const
{
    return m_impl->m_settings->GetBool(GetSettingKey("dont_confirm"), false);
}

void ConfirmationAlertBox::WriteAnswer(int answer)
{
    m_impl->m_settings->SetInt(GetSettingKey("answer"), m_impl->m_forceSaveAnswer ? m_impl->m_forcedAnswer : answer);
}

void ConfirmationAlertBox::WriteDontConfirm(bool value)
{
    m_impl->m_settings->SetBool(GetSettingKey("dont_confirm"), value);
}

} // namespace Ostrel::App
