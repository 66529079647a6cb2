#pragma once

#include "Nag/ostrel_nag_export.h"

#include <QString>

namespace Ostrel::App::NagScreen {

/// How a content is realised.
enum class Implementation : int
{
    None = 0,
    /// A QML nag from the resources or a local folder (QuickContent).
    Local = 1,
    /// A QML nag fetched over HTTP into a local shell (WebQuickContent).
    Web = 2,
};

/// "none", "local" or "web"; "unknown" for a value outside the enumeration.
OSTREL_NAG_EXPORT QString ImplName(Implementation implementation);

/// The inverse of ImplName; anything else reads as None.
OSTREL_NAG_EXPORT Implementation ImplFromName(const QString& name);

} // namespace Ostrel::App::NagScreen
