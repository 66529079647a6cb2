#pragma once

#include "Email/AbstractEmailDialog.h"
#include "Email/ostrel_email_export.h"

#include <memory>

class QWidget;

namespace Ostrel::App {

class ICustomizationManager;
class ILinksManager;
class IMailSettingsManager;

class OSTREL_EMAIL_EXPORT EmailDialogCreator
{
public:
    EmailDialogCreator() = delete;

    /// The dialog of this product, or null when there is nowhere to keep the answer (no mail
    /// settings). The links manager (for the privacy policy) and the customization (for the
    /// product's name) may be null.
    static std::unique_ptr<AbstractEmailDialog>
    Create(const std::shared_ptr<IMailSettingsManager>& settingsManager,
           const std::shared_ptr<ILinksManager>& linksManager,
           const std::shared_ptr<ICustomizationManager>& customizationManager, QWidget* parent);
};

} // namespace Ostrel::App
