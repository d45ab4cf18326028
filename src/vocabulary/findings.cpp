#include "vocabulary/findings.h"

#include <algorithm>

#include "text/filled.h"
#include "text/split.h"
#include "text/visible.h"

namespace zarn_3_3::internal {

Findings::Findings(std::string_view ignored) { split(ignored, ignored_); }

void Findings::error(const char* id, const std::string& item, const std::string& what) {
    add(errorsFound, "error", id, item, what);
}

void Findings::warning(const char* id, const std::string& item, const std::string& what) {
    add(warningsFound, "warning", id, item, what);
}

void Findings::add(CheckCode severity,
                   const char* word,
                   const char* id,
                   const std::string& item,
                   const std::string& what) {
    const bool isIgnored =
        ignored_.count(id) != 0 || ignored_.count(filled("{}:{}", {id, item})) != 0;
    if (!isIgnored) {
        // A name may hold a line feed, and a finding is one line.
        text_.append(visible(filled("{} {} '{}': {}", {word, id, item, what}))) += '\n';
        code_ = std::max(code_, severity);
    }
}

}  // namespace zarn_3_3::internal
