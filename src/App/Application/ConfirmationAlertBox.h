#pragma once

#include "App/Application/ostrel_app_export.h"
#include "QtUtil/AlertBox.h"

#include <memory>
#include <string>

namespace Ostrel::App {

class IApplicationSettingsManager;

/// A message box with a "Don't show this again" check box. Once the user ticks it and answers, a
/// later box with the same confirmation id returns that answer without showing anything. Answers
/// live in the application settings under "confirm/<id>_dont_confirm" and "confirm/<id>_answer".
///
/// Use: construct, SetConfirmationId, the optional setters, Exec.
class OSTREL_APP_EXPORT ConfirmationAlertBox : public Util::AlertBox
{
    Q_OBJECT
public:
    ConfirmationAlertBox(std::shared_ptr<IApplicationSettingsManager> settings, Util::AlertBox::Level level,
                         const QString& title, const QString& text, QMessageBox::StandardButtons buttons,
                         QWidget* parent = nullptr,
                         Qt::WindowFlags flags = Qt::Dialog | Qt::MSWindowsFixedSizeDialogHint);
    ~ConfirmationAlertBox() override;

    /// The stored answer when the user asked not to be asked; otherwise shows the box.
    QMessageBox::StandardButton Exec() override;

    /// Ties the box to its stored state: the check box shows whether the user asked not to be asked.
    void SetConfirmationId(const QString& id);
    QString GetConfirmationId() const;
    void SetConfirmationText(const QString& text);
    QString GetConfirmationText() const;
    /// Checks or unchecks the box; stores nothing.
    void SetDontConfirm(bool dontConfirm);
    bool IsDontConfirm() const;
    /// Whether a ticked answer with the reject role (Cancel, Close) is remembered too. Off by default.
    void SetRememberOnReject(bool remember);
    bool RememberOnReject() const;
    /// Only ticked answers among these buttons are remembered; none means every answer.
    void SetRememberOnly(QMessageBox::StandardButtons buttons);
    QMessageBox::StandardButtons RememberOnly() const;
    /// From now on a remembered answer is stored as `answer`, whatever was clicked.
    void SetForceSaveAnswer(int answer);
    /// The next box with this id asks again. The stored answer stays until a new one replaces it.
    void Reset();

private:
    std::string GetSettingKey(const std::string& key) const;
    int ReadAnswer() const;
    bool ReadDontConfirm() const;
    void WriteAnswer(int answer);
    void WriteDontConfirm(bool value);

    class Impl;
    std::unique_ptr<Impl> d;
};

} // namespace Ostrel::App
