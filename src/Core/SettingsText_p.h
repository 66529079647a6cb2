#pragma once

#include <QString>

#include <optional>

namespace Ostrel::App::SettingsText {

/// "true"/"1" and "false"/"0" in any case and with blanks around; anything else is no answer.
std::optional<bool> parseBool(const QString& text);

} // namespace Ostrel::App::SettingsText
