#include "Email/EmailDialogCreator.h"

#include "Email/EmailDialog_p.h"

#include <glog/logging.h>

namespace Ostrel::App {

std::unique_ptr<AbstractEmailDialog>
EmailDialogCreator::Create(const std::shared_ptr<IMailSettingsManager>& settingsManager,
                           const std::shared_ptr<ILinksManager>& linksManager,
                           const std::shared_ptr<ICustomizationManager>& customizationManager,
                           QWidget* parent)
{
    if (!settingsManager) {
        LOG(ERROR) << "No mail settings to keep the e-mail address in";
        return nullptr;
    }
    return std::make_unique<EmailDialog>(settingsManager, linksManager, customizationManager, parent);
}

} // namespace Ostrel::App
