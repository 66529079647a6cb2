#pragma once

#include "Email/ostrel_email_export.h"

#include <QDialog>

namespace Ostrel::App {

/// The question for the user's e-mail address. What the user enters goes to the mail settings
/// ("UserName", "UserEmail", and "isConfirmed" = "1" when the user agreed to the newsletter).
class OSTREL_EMAIL_EXPORT AbstractEmailDialog : public QDialog
{
    Q_OBJECT

public:
    ~AbstractEmailDialog() override;
    /// Shows the dialog modally and returns when it is closed, with QDialog's result.
    virtual int ShowModal() = 0;

protected:
    explicit AbstractEmailDialog(QWidget* parent);
};

} // namespace Ostrel::App
