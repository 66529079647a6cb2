#include "Foundation/PropertySerializer.h"

#include "Foundation/DataInputString.h"
#include "Foundation/Property.h"

#include <glog/logging.h>

#include <vector>

namespace Ostrel::Core {

namespace {

// Nesting deeper than this is no title or settings file anyone writes; refusing it keeps a
// hostile file from building a tree that later recursion (Serialize, destruction) can't handle.
constexpr std::size_t MaxDepth = 64;

bool isBlank(char c)
{
    return c == ' ' || c == '\t';
}

bool isNameChar(char c)
{
    return !isBlank(c) && c != '=' && c != '{' && c != '}' && c != '"' && c != '#' && c != '\0';
}

std::string trimmed(const std::string& text)
{
    std::size_t begin = 0;
    std::size_t end = text.size();
    while (begin < end && isBlank(text[begin]))
        ++begin;
    while (end > begin && isBlank(text[end - 1]))
        --end;
    return text.substr(begin, end - begin);
}

// Decodes a quoted value starting at text[0] == '"'. False for an unterminated string, an
// unknown escape, or anything but blanks after the closing quote.
bool unquote(const std::string& text, std::string* value)
{
    value->clear();
    std::size_t i = 1;
    for (; i < text.size(); ++i) {
        const char c = text[i];
        if (c == '"')
            break;
        if (c != '\\') {
            value->push_back(c);
            continue;
        }
        if (++i >= text.size())
            return false;
        switch (text[i]) {
        case '"':
            value->push_back('"');
            break;
        case '\\':
            value->push_back('\\');
            break;
        case 'n':
            value->push_back('\n');
            break;
        case 't':
            value->push_back('\t');
            break;
        default:
            return false;
        }
    }
    if (i >= text.size())
        return false;
    return trimmed(text.substr(i + 1)).empty();
}

std::string quote(const std::string& value)
{
    std::string out = "\"";
    for (const char c : value) {
        switch (c) {
        case '"':
            out += "\\\"";
            break;
        case '\\':
            out += "\\\\";
            break;
        case '\n':
            out += "\\n";
            break;
        case '\t':
            out += "\\t";
            break;
        default:
            out.push_back(c);
        }
    }
    out.push_back('"');
    return out;
}

void write(const Property& node, int depth, std::string* out)
{
    const std::string indent(static_cast<std::size_t>(depth) * 4, ' ');
    for (const Property& child : node.GetChildren()) {
        if (!child.GetChildren().empty()) {
            *out += indent + child.GetName() + " {\n";
            write(child, depth + 1, out);
            *out += indent + "}\n";
        } else {
            *out += indent + child.GetName() + " = " + quote(child.GetString()) + "\n";
        }
    }
}

} // namespace

bool PropertySerializer::Deserialize(Property& property, const std::shared_ptr<DataInputString>& input,
                                     bool clear)
{
    if (clear)
        property.Clear();
    if (!input)
        return false;

    std::vector<Property*> open{&property};
    int lineNumber = 0;
    bool first = true;
    while (!input->AtEnd()) {
        std::string line = input->ReadLine();
        ++lineNumber;
        if (first && line.compare(0, 3, "\xEF\xBB\xBF") == 0)
            line.erase(0, 3);
        first = false;
        const std::string text = trimmed(line);
        if (text.empty() || text[0] == '#')
            continue;
        if (text == "}") {
            if (open.size() == 1) {
                LOG(WARNING) << "Property text: unmatched '}' on line " << lineNumber;
                return false;
            }
            open.pop_back();
            continue;
        }
        std::size_t nameEnd = 0;
        while (nameEnd < text.size() && isNameChar(text[nameEnd]))
            ++nameEnd;
        const std::string name = text.substr(0, nameEnd);
        const std::string rest = trimmed(text.substr(nameEnd));
        if (name.empty() || rest.empty()) {
            LOG(WARNING) << "Property text: no name or no '='/'{' on line " << lineNumber;
            return false;
        }
        if (rest == "{") {
            if (open.size() > MaxDepth) {
                LOG(WARNING) << "Property text: nesting too deep on line " << lineNumber;
                return false;
            }
            open.push_back(&open.back()->AddChild(name));
            continue;
        }
        if (rest[0] != '=') {
            LOG(WARNING) << "Property text: expected '=' or '{' on line " << lineNumber;
            return false;
        }
        const std::string valueText = trimmed(rest.substr(1));
        std::string value;
        if (!valueText.empty() && valueText[0] == '"') {
            if (!unquote(valueText, &value)) {
                LOG(WARNING) << "Property text: broken quoted value on line " << lineNumber;
                return false;
            }
        } else {
            value = valueText;
        }
        open.back()->AddChild(name, value);
    }
    if (open.size() != 1) {
        LOG(WARNING) << "Property text: " << open.size() - 1 << " block(s) left open at the end";
        return false;
    }
    return true;
}

std::string PropertySerializer::Serialize(const Property& property)
{
    std::string out;
    write(property, 0, &out);
    // A first name that begins with the bytes of a byte order mark would lose them on reading:
    // a blank line first keeps them part of the name.
    if (out.compare(0, 3, "\xEF\xBB\xBF") == 0)
        out.insert(0, "\n");
    return out;
}

} // namespace Ostrel::Core
