#pragma once

#include "App/Application/ostrel_app_export.h"

#include <QStringList>

namespace Ostrel::App {
class ICustomizationManager;
}

namespace Ostrel::App::NagScreen {

/// The hosts the product's nags come from, as the customization has them: the host of the
/// "messages" endpoint ("Hosts/messages", else the built-in one of UrlEndpointHosts), and the host
/// of "Links/CUSTOM_WEB_NAG_URL" when the customization sets that link. Lower case, no duplicates.
/// What nags may reach and which nag requests of other processes are honoured both rest on it.
OSTREL_APP_EXPORT QStringList ProductNagHosts(const ICustomizationManager* customization);

} // namespace Ostrel::App::NagScreen
