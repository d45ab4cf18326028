// What the modern face does while the plain parser is at work.

#ifndef ZARN_MODERN_PARSE_WATCH_H
#define ZARN_MODERN_PARSE_WATCH_H

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

#include "modern/item_record.h"
#include "recognizers/failure.h"
#include "result/parse_result.h"
#include "zarn/event_handler.h"
#include "zarn/typed/engine.h"

namespace zarn_3_3::internal {

class Vocabulary;

// Values of an item that were parsed apart from the command line: from the environment, or for one
// of several positional items.
struct Aside {
    const ItemRecord* item;
    Origin origin;
    std::unique_ptr<ParseResult> result;
};

// What is known of a parse while it runs.
struct WatchedParse {
    std::string reason;   // why a value was refused, to be put behind the message
    std::string instead;  // a message in place of the plain one
    FailureNote told;     // beyond what the plain parser notes
    std::size_t positionalCount = 0;
    std::vector<Aside> asides;
};

// Asks the checks, and gives the arguments of several positional items to each.
class ParseWatch final : public EventHandler {
public:
    explicit ParseWatch(const Vocabulary& vocabulary) : vocabulary_(vocabulary) {}

    // Whether there is anything to listen for.
    bool isNeeded() const;

    // One parse. A handler may run it inside another, which then goes on as it was.
    class Session final {
    public:
        // `asides`: what was parsed aside for what the result holds already.
        Session(ParseWatch& watch, const ParseResult& result, std::vector<Aside> asides);
        Session(const Session&) = delete;
        Session& operator=(const Session&) = delete;
        ~Session() { watch_.parse_ = std::move(outer_); }

    private:
        ParseWatch& watch_;
        WatchedParse outer_;
    };

    std::vector<Aside> takeAsides() { return std::move(parse_.asides); }

    // What is known of a value that was refused in this parse.
    FailureNote& told() { return parse_.told; }

    // The message of a failed parse, and what is known beyond it. `failure`: as the parser noted
    // it, or null.
    std::string explained(std::string message, const Failure* failure) const;

    bool accepts(const ItemRecord& item, const Value& value);

    // Parses the argument, "--name=text", with a parser that knows this item alone, so that the
    // text is taken as a typed one is. A code of a failure leaves its text in `error`, which quotes
    // `typed` in place of the argument.
    int parseAside(const ItemRecord& item,
                   const std::string& argument,
                   const std::string& typed,
                   ParseResult& result,
                   std::string& error);

    bool onValueParse(const char* name, const Value& value) override;

private:
    bool routesPositionals() const;
    bool takePositional(const Value& value);
    bool refusePositional(const ItemRecord& item, const Value& value);
    ParseResult& positionalAside(const ItemRecord& item);

    const Vocabulary& vocabulary_;
    WatchedParse parse_;
};

}  // namespace zarn_3_3::internal

#endif  // ZARN_MODERN_PARSE_WATCH_H
