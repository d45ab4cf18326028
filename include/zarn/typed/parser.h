// The parser and its results as handles that own them.

#ifndef ZARN_TYPED_PARSER_H
#define ZARN_TYPED_PARSER_H

#include <initializer_list>
#include <new>
#include <string>
#include <utility>

#include "zarn/parser.h"
#include "zarn/result.h"
#include "zarn/typed/declaration.h"
#include "zarn/typed/owned.h"

namespace zarn_3_3 {

// What a parse found; it may outlive its parser. How it is read: zarn/typed/reading.h.
class Result final : public Owned<IParseResult> {
public:
    // Takes over a result that IParser::createResult made.
    using Owned<IParseResult>::Owned;

    // An empty result of the parser. Throws std::bad_alloc when memory runs out.
    explicit Result(IParser& parser) : Owned(make(parser)) {}

private:
    static IParseResult* make(IParser& parser) {
        IParseResult* made = nullptr;
        if (parser.createResult(&made) != resultOk) {
            throw std::bad_alloc();
        }
        return made;
    }
};

// How a parse ended. True when it went well.
//
//     const zarn::ParseOutcome outcome = parser.parse(argc, argv);
//     if (!outcome) {
//         std::cerr << outcome.text << '\n';
//         return outcome.code;
//     }
struct ParseOutcome {
    explicit operator bool() const noexcept { return code == resultOk; }

    int code;          // a ResultCode
    std::string text;  // why it failed, as IParser::getErrorDesc has it; empty when it did not
    Result result;     // what was found; after a failure, what was found until then
};

// A parser that is owned. Everything that IParser offers is reached with ->.
//
// What outlives it: results. What must not: handlers that are registered, so declare them behind
// it.
class Parser final : public Owned<IParser> {
public:
    // Takes over a parser that createParser made.
    using Owned<IParser>::Owned;

    // flags  any combination of ParserFlag values, or 0
    //
    // Throws std::bad_alloc when memory runs out.
    explicit Parser(int flags = 0) : Owned(make(flags)) {}

    // Declares the items, in order, in the section of the help that is given as "key:Title" or as
    // the key alone; without one, in a section without heading. What is refused (see
    // IParser::option) is left out. No exception leaves it.
    void declare(const char* section, std::initializer_list<Item> items) {
        for (const Item& item : items) {
            item.declareOn(*get(), section);
        }
    }
    void declare(std::initializer_list<Item> items) { declare("", items); }

    // Parses a command line as main has it into a result of its own; see IParser::parseArgsVector.
    // A failure is told in the outcome, not thrown: code is
    //   resultOk
    //   resultVetoed                a handler answered false to a value
    //   resultRuleBroken            an argument, a value or a combination of actions is wrong
    //   resultException             a standard exception inside, thrown by a handler perhaps
    //   resultOptionFileUnreadable  an option file could not be read
    //
    // Throws std::bad_alloc when there is no memory for the outcome, and what a handler throws that
    // does not derive from std::exception.
    ParseOutcome parse(int argc, const char* const* argv) {
        Result into(*get());
        const int code = get()->parseArgsVector(argc, argv, into.get());
        return conclude(code, std::move(into));
    }

    // Parses a text of one argument a line; see IParser::parseStream. Outcome and exceptions are
    // those of parse; an exception takes `into` with it.
    //
    // text  null for an empty text
    // into  what is found is added to what it holds; without one, a new result. It has to come
    //       from this parser. Option files that it names are read again
    //
    //     outcome = parser.parseStream(std::getenv("TOOL_OPTIONS"), std::move(outcome.result));
    ParseOutcome parseStream(const char* text, Result into) {
        const int code = get()->parseStream(text, into.get());
        return conclude(code, std::move(into));
    }
    ParseOutcome parseStream(const char* text) { return parseStream(text, Result(*get())); }

private:
    static IParser* make(int flags) {
        IParser* made = nullptr;
        if (createParser(&made, flags) != resultOk) {
            throw std::bad_alloc();
        }
        return made;
    }

    ParseOutcome conclude(int code, Result filled) {
        return {code, code == resultOk ? "" : get()->getErrorDesc(), std::move(filled)};
    }
};

}  // namespace zarn_3_3

#endif  // ZARN_TYPED_PARSER_H
