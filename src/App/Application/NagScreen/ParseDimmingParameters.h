#pragma once

#include "App/Application/ostrel_app_export.h"

#include <QMap>
#include <QString>

namespace Ostrel::App::NagScreen {

/// Reads "key=value,key=value". Parts without both a key and a value are ignored, a later key
/// wins, pieces after a second "=" are dropped. There is no escaping: neither "," nor "=" can be
/// part of a value.
OSTREL_APP_EXPORT QMap<QString, QString> ParseDimmingParameters(const QString& text);

} // namespace Ostrel::App::NagScreen
