// What a check of a vocabulary has found.

#ifndef ZARN_VOCABULARY_FINDINGS_H
#define ZARN_VOCABULARY_FINDINGS_H

#include <set>
#include <string>
#include <string_view>

#include "zarn/tooling.h"

namespace zarn_3_3::internal {

// Who only weighs what is wrong says so here; what the author has chosen to ignore leaves no trace.
class Findings {
public:
    // `ignored`: ids, or "id:item", separated by commas.
    explicit Findings(std::string_view ignored);

    // `item`: the primary name of the item that is meant.
    void error(const char* id, const std::string& item, const std::string& what);
    void warning(const char* id, const std::string& item, const std::string& what);

    // One a line, as "error id 'item': what".
    const std::string& text() const { return text_; }
    CheckCode code() const { return code_; }

private:
    void add(CheckCode severity,
             const char* word,
             const char* id,
             const std::string& item,
             const std::string& what);

    std::set<std::string> ignored_;
    std::string text_;
    CheckCode code_ = nothingFound;
};

}  // namespace zarn_3_3::internal

#endif  // ZARN_VOCABULARY_FINDINGS_H
