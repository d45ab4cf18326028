// How a parse has failed, as data.

#ifndef ZARN_TYPED_DIAGNOSIS_H
#define ZARN_TYPED_DIAGNOSIS_H

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <new>
#include <string>
#include <vector>

#include "zarn/parser.h"
#include "zarn/tooling.h"

namespace zarn_3_3 {

// What Diagnostic holds, in texts of its own.
struct Diagnosis {
    DiagnosticKind kind = noFailure;
    int code = resultOk;
    int index = 0;
    std::string file;
    std::uint64_t line = 0;
    std::string argument;
    std::string option;
    std::string value;
    std::vector<std::string> candidates;
    std::vector<std::string> suggestions;

    // Whether there was a failure.
    explicit operator bool() const noexcept { return kind != noFailure; }
};

namespace internal {

inline std::vector<std::string> linesOf(const std::string& text) {
    std::vector<std::string> lines;
    for (std::size_t begin = 0; begin < text.size();) {
        const std::size_t end = std::min(text.find('\n', begin), text.size());
        lines.push_back(text.substr(begin, end - begin));
        begin = end + 1;
    }
    return lines;
}

}  // namespace internal

// How the last parse of a Parser or an IParser has failed; see lastDiagnostic. Throws
// std::bad_alloc when memory runs out.
inline Diagnosis diagnose(IParser& parser) {
    Diagnostic found{};
    found.size = sizeof found;
    if (lastDiagnostic(&parser, &found) != toolingDone) {
        throw std::bad_alloc();
    }
    return {static_cast<DiagnosticKind>(found.kind),
            found.code,
            found.index,
            found.file,
            found.line,
            found.argument,
            found.option,
            found.value,
            internal::linesOf(found.candidates),
            internal::linesOf(found.suggestions)};
}

}  // namespace zarn_3_3

#endif  // ZARN_TYPED_DIAGNOSIS_H
