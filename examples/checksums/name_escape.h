// File names that fit on one line, whatever bytes they hold.

#ifndef ZARN_CHECKSUMS_NAME_ESCAPE_H
#define ZARN_CHECKSUMS_NAME_ESCAPE_H

#include <optional>
#include <string>

namespace checksums {

bool needsEscape(const std::string& name);

// Backslash, line feed and carriage return become \\, \n and \r.
std::string escapeName(const std::string& name);

// Nothing when `text` holds another escape than these.
std::optional<std::string> unescapeName(const std::string& text);

}  // namespace checksums

#endif  // ZARN_CHECKSUMS_NAME_ESCAPE_H
