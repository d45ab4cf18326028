// The last failure as a record.

#include <algorithm>
#include <cstring>
#include <string>
#include <vector>

#include "diagnostics/suggestions.h"
#include "parser/ask_parser.h"
#include "recognizers/failure.h"

namespace zarn_3_3 {

using namespace internal;

namespace {

// One a line; a text that has lines itself would read as several.
std::string lines(const std::vector<std::string>& texts) {
    std::string all;
    for (const std::string& text : texts) {
        if (text.find('\n') == std::string::npos) {
            all.append(all.empty() ? "" : "\n").append(text);
        }
    }
    return all;
}

Diagnostic recordOf(const Failure& failure, BasicParser& parser) {
    // Where no single item failed, as in a rule on several, who refused has noted them.
    const std::string candidates = failure.candidates.empty()
                                       ? lines(candidatesOf(failure, parser.vocabulary()))
                                       : failure.candidates;
    // Equal texts are kept once: asking again takes no memory.
    return {sizeof(Diagnostic),
            failure.kind,
            failure.code,
            failure.index,
            parser.keep(failure.file),
            failure.line,
            parser.keep(failure.argument),
            parser.keep(failure.option),
            parser.keep(failure.value),
            parser.keep(candidates),
            parser.keep(lines(suggestionsFor(failure, parser.vocabulary())))};
}

}  // namespace

int lastDiagnostic(IParser* parser, Diagnostic* diagnostic) {
    // Refused as a null parser is.
    if (diagnostic == nullptr) {
        parser = nullptr;
    }
    return askParser(parser, [diagnostic](BasicParser& asked) -> int {
        const Failure none;
        const Failure* const failure = asked.failure().get();
        const Diagnostic record = recordOf(failure != nullptr ? *failure : none, asked);
        // The caller may be older, with fewer fields, or newer, with more of them.
        const auto size = std::min<std::size_t>(diagnostic->size, sizeof record);
        // Behind the size, which stays the caller's.
        if (size > sizeof record.size) {
            std::memcpy(&diagnostic->kind, &record.kind, size - sizeof record.size);
        }
        return toolingDone;
    });
}

}  // namespace zarn_3_3
