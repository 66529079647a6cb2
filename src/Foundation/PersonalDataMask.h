#pragma once

#include "Foundation/ostrel_foundation_export.h"

#include <QString>

#include <string>

namespace Ostrel::Core {

/// Keeps the user's personal data (the e-mail address and the name that links carry) out of
/// what the shell writes to tracking and logs. Whatever opens a URL still gets it whole; only
/// the recorded copy goes through mask().
///
/// mask() replaces with "***":
/// - every e-mail address, plain or percent-encoded ("%40"), in any case;
/// - the value of every query item whose key names personal data ("name", "email", ...);
/// - every value announced by rememberPersonalValue(), plain, percent-encoded or with "+" for
///   blanks, in any case: a name in a path segment has no other mark.
/// Safe to use from several threads.
class OSTREL_FOUNDATION_EXPORT PersonalDataMask
{
public:
    PersonalDataMask() = delete;

    static QString mask(const QString& text);
    /// The same for UTF-8 text.
    static std::string mask(const std::string& text);

    /// Announces a value that is personal wherever it appears; values shorter than three
    /// characters are left to the other rules, since they would mask ordinary words.
    static void rememberPersonalValue(const QString& value);
    /// Forgets every announced value (for tests).
    static void forgetPersonalValues();
};

} // namespace Ostrel::Core
