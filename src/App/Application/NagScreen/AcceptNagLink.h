#pragma once

#include "App/Application/ostrel_app_export.h"

class QUrl;

namespace Ostrel::App::NagScreen {

/// Whether a link from nag content may be opened: only web pages ("http", "https", with a host)
/// and mail ("mailto"). Anything else (local files, network shares, scripts, custom handlers of
/// other programs, an empty or malformed address) is refused with a WARNING naming it.
OSTREL_APP_EXPORT bool AcceptNagLink(const QUrl& url);

} // namespace Ostrel::App::NagScreen
