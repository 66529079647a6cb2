#pragma once

#include "Email/AbstractEmailDialog.h"

#include <memory>

namespace Ostrel::App {

class ICustomizationManager;
class ILinksManager;
class IMailSettingsManager;

/// Name, address and newsletter consent in one small form. The address is checked before the
/// dialog accepts; Cancel stores "isConfirmed" = "0" and keeps whatever was stored before.
class EmailDialog : public AbstractEmailDialog
{
    Q_OBJECT

public:
    EmailDialog(const std::shared_ptr<IMailSettingsManager>& settings,
                const std::shared_ptr<ILinksManager>& links,
                const std::shared_ptr<ICustomizationManager>& customization, QWidget* parent);
    ~EmailDialog() override;

    int ShowModal() override;
    void accept() override;
    void reject() override;

    /// A plausible address: one "@", a local part, a dotted domain, no spaces.
    static bool IsValidAddress(const QString& address);

private:
    class Impl;
    std::unique_ptr<Impl> d;
};

} // namespace Ostrel::App
