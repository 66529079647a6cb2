#pragma once

#include "Foundation/ostrel_foundation_export.h"

#include <memory>
#include <string>

namespace Ostrel::Core {

class DataInputString;
class Property;

/// The text form of a Property tree, UTF-8, one statement a line:
///
///     # a comment (the whole line; leading blanks allowed)
///     name = value          a child with a value: the rest of the line, blanks trimmed
///     name = "a \"b\"\n"    the same, quoted: \" \\ \n \t are the escapes, nothing may follow
///     name {                a child whose own children follow ...
///     }                     ... up to the closing brace, alone on its line
///
/// A name is a run of bytes without blanks, '=', '{', '}', '"' or '#'. A UTF-8 byte order mark
/// at the very start is skipped; line breaks may be "\n", "\r\n" or "\r".
///
/// Reading never fails hard: at the first line that breaks the syntax it stops and keeps what it
/// has read so far, so a damaged file still yields its leading part.
class OSTREL_FOUNDATION_EXPORT PropertySerializer
{
public:
    /// Reads children into `property` (after clearing it when `clear` is set). Returns false when
    /// the input broke the syntax somewhere or a block was left open; the tree then holds the
    /// children read before that point.
    static bool Deserialize(Property& property, const std::shared_ptr<DataInputString>& input, bool clear);
    /// The children of `property` in the form above; Deserialize reads it back to an equal tree.
    static std::string Serialize(const Property& property);
};

} // namespace Ostrel::Core
