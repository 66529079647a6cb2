#pragma once

#include "App/Application/ostrel_app_export.h"

#include <QString>

/// The HTML of the dialog telling that CUDA acceleration was switched off in the driver's control
/// panel: `productName` goes in the sentence, `instructionsUrl` in the link. The link takes the
/// style in the application's dynamic property "linkStyle" (empty when unset).
OSTREL_APP_EXPORT QString GetGPUNeedSetupDriverMessage(const QString& instructionsUrl,
                                                       const QString& productName);

/// The HTML of the dialog telling that the installed driver can't do CUDA acceleration, with a
/// link to `downloadUrl` in the "linkStyle" style.
OSTREL_APP_EXPORT QString GetGPUUnsupportedDriverMessage(const QString& downloadUrl);
