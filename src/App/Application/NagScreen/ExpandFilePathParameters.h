#pragma once

#include "App/Application/ostrel_app_export.h"

#include <QMap>
#include <QString>

namespace Ostrel::App::NagScreen {

class AbstractContent;
class DimmingProvider;

/// Makes the file path parameters of any dimmer of `provider` absolute against the folder of the
/// nag's main file. An absolute value, or a nag that isn't a local file, leaves the value as it is.
OSTREL_APP_EXPORT void ExpandFilePathParameters(const DimmingProvider& provider,
                                                const AbstractContent& content,
                                                QMap<QString, QString>& parameters);

} // namespace Ostrel::App::NagScreen
