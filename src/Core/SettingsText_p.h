#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace Ostrel::App::SettingsText {

/// "true"/"1" and "false"/"0" in any case and with blanks around; anything else is no answer.
std::optional<bool> parseBool(const QString& text);

/// The number (from 1) of the first line of INI text that is none of: empty, a comment (";" or
/// "#"), a "[section]", a "key=value" or the continuation of a value ending in "\\". Nothing when
/// every line is one of them.
std::optional<int> firstMalformedLine(const QByteArray& text);

/// The number (from 1) of the first "key=@Variant(...)" line whose value QSettings can't decode
/// (a type of a newer build or another tool, a cut value), so that its next save would write the
/// key back otherwise (empty). Nothing when every such value comes back as it is.
std::optional<int> firstUndecodableLine(const QByteArray& text);

} // namespace Ostrel::App::SettingsText
