#include "vocabulary/findings.h"

#include <algorithm>

#include "text/filled.h"
#include "text/split.h"
#include "text/visible.h"

namespace zarn_3_3::internal {

Findings::Findings(std::string_view ignored) { split(ignored, ignored_); }

void Findings::error(std::string_view id, std::string_view item, std::string_view what) {
    add(errorsFound, "error", id, item, what);
}

void Findings::warning(std::string_view id, std::string_view item, std::string_view what) {
    add(warningsFound, "warning", id, item, what);
}

void Findings::add(CheckCode severity,
                   std::string_view word,
                   std::string_view id,
                   std::string_view item,
                   std::string_view what) {
    const bool isIgnored =
        ignored_.count(std::string(id)) != 0 || ignored_.count(filled("{}:{}", {id, item})) != 0;
    if (!isIgnored) {
        text_.append(visible(filled("{} {} '{}': {}", {word, id, item, what}))) += '\n';
        code_ = std::max(code_, severity);
    }
}

}  // namespace zarn_3_3::internal
