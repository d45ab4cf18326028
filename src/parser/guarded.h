// The wall for exceptions: nothing standard crosses the exported interface.

#ifndef ZARN_PARSER_GUARDED_H
#define ZARN_PARSER_GUARDED_H

#include <exception>
#include <string>
#include <utility>

#include "zarn/parser.h"

namespace zarn_3_3::internal {

// Keeping a text can itself run out of memory, and nothing may leave the wall: better no text. A
// client's exception may have none.
inline void setLastError(std::string& lastError, const char* text) noexcept {
    try {
        lastError = text == nullptr ? "" : text;
    } catch (const std::exception&) {
        lastError.clear();
    }
}

// Runs `operation` and returns its code; a standard exception becomes resultException with its text
// in `lastError`. Anything else passes: it is the client's own, thrown by the client's handler.
template <typename Operation>
int guarded(std::string& lastError, Operation&& operation) {
    try {
        return std::forward<Operation>(operation)();
    } catch (const std::exception& caught) {
        setLastError(lastError, caught.what());
        return resultException;
    }
}

// Runs `operation` and returns its answer, or `otherwise` after a standard exception.
template <typename Answer, typename Operation>
Answer guardedAnswer(Answer otherwise, Operation&& operation) {
    try {
        return std::forward<Operation>(operation)();
    } catch (const std::exception&) {
        return otherwise;
    }
}

}  // namespace zarn_3_3::internal

#endif  // ZARN_PARSER_GUARDED_H
