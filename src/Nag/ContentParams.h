#pragma once

#include "Nag/ostrel_nag_export.h"

#include <map>
#include <string>

namespace Ostrel::App::NagScreen {

class AbstractContent;

/// Adds the standard tracking parameters of a content to `params`, replacing those present:
/// "NAG_ID", "NAG_NAME", "NAG_TYPE", "NAG_APP_ACTION", "NAG_APP_MODE", "NAG_SOURCE_URL" (the
/// address as the user could read it) and "NAG_STATE" ("LOADING", "READY", "FAILED").
OSTREL_NAG_EXPORT void appendContentParams(std::map<std::string, std::string>& params,
                                           const AbstractContent& content);

} // namespace Ostrel::App::NagScreen
