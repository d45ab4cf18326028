// What the exported operations on a parser have in common.

#ifndef ZARN_PARSER_ASK_PARSER_H
#define ZARN_PARSER_ASK_PARSER_H

#include "parser/basic_parser.h"
#include "parser/guarded.h"
#include "zarn/tooling.h"

namespace zarn_3_3::internal {

// Runs operation(parser), which returns a code. toolingFailed for a null pointer, a parser that is
// not this library's, and a standard exception.
template <typename Operation>
int askParser(IParser* parser, Operation operation) {
    auto* const own = dynamic_cast<BasicParser*>(parser);
    if (own == nullptr) {
        return toolingFailed;
    }
    return guardedAnswer<int>(toolingFailed, [&] { return operation(*own); });
}

// The same for one that leaves a text in `*answer`, which is empty when it fails.
template <typename Operation>
int askParser(IParser* parser, const char** answer, Operation operation) {
    if (answer == nullptr) {
        return toolingFailed;
    }
    *answer = "";
    return askParser(parser, operation);
}

}  // namespace zarn_3_3::internal

#endif  // ZARN_PARSER_ASK_PARSER_H
