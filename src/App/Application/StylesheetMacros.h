#pragma once

#include "App/Application/ostrel_app_export.h"

#include <QString>

#include <map>
#include <memory>

namespace Ostrel::App {

/// The "@" macros of a theme, replaced in a stylesheet.
///
/// The defined result is the ordered replacement: for each macro in ascending key order, every
/// occurrence in the text as it stands then is replaced (`applyInOrder`). So a macro whose name is
/// a prefix of another's wins inside the longer one's occurrences, and a value that names a macro
/// sorting later is itself expanded. `apply` gives the same text in one scan of the sheet: at each
/// "@" the shortest macro that matches there is the one the ordered replacement would pick, and a
/// value's expansion is worked out once per macro. Where one scan cannot tell (a key holding a
/// second "@", or a macro that could be completed by what a replacement puts after it) it falls
/// back to the ordered replacement, so the text is always the same.
class OSTREL_APP_EXPORT StylesheetMacros
{
public:
    /// `macros`: key (with its "@") to value.
    explicit StylesheetMacros(const std::map<QString, QString>& macros);
    ~StylesheetMacros();
    StylesheetMacros(const StylesheetMacros&) = delete;
    StylesheetMacros& operator=(const StylesheetMacros&) = delete;

    /// The text with every macro replaced. `onePass`, when given, tells whether the single scan
    /// decided it (false: the ordered replacement did).
    QString apply(const QString& text, bool* onePass = nullptr) const;
    /// The same, rewriting the text in place when no expansion is longer than its macro's name.
    QString apply(QString&& text, bool* onePass = nullptr) const;

    /// The reference: one full replacement pass per macro, in ascending key order.
    static QString applyInOrder(QString text, const std::map<QString, QString>& macros);

private:
    class Impl;
    std::unique_ptr<Impl> d;
};

} // namespace Ostrel::App
