#include "modern/parse_watch.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <new>
#include <utility>

#include "modern/failures.h"
#include "modern/messages.h"
#include "modern/vocabulary.h"
#include "parser/messages.h"
#include "recognizers/messages.h"
#include "text/filled.h"
#include "zarn/option.h"
#include "zarn/typed/parser.h"

namespace zarn_3_3::internal {
namespace {

// Hears what is parsed aside for one item.
class Asking final : public EventHandler {
public:
    Asking(ParseWatch& watch, const ItemRecord& item) : watch_(watch), item_(item) {}

    bool onValueParse(const char* /*name*/, const Value& value) override {
        return watch_.accepts(item_, value);
    }

private:
    ParseWatch& watch_;
    const ItemRecord& item_;
};

// Whether the text looks like a number of this type, though it is none: it is then beyond its
// bounds.
bool looksLikeNumber(const char* text, das_variant_type_t type) {
    text += std::strspn(text, "+-") == 1 ? 1 : 0;
    const char* const marks = type == vtDouble ? "0123456789.eE+-" : "0123456789";
    const char* const end = text + std::strspn(text, marks);
    char* read = nullptr;
    std::strtod(text, &read);
    return end != text && read == end && *end == '\0';
}

}  // namespace

bool ParseWatch::isNeeded() const {
    // Every handler makes the plain parser copy what it could otherwise read in place.
    return routesPositionals() || vocabulary_.demands().checks;
}

bool ParseWatch::accepts(const ItemRecord& item, const Value& value) {
    parse_.reason.clear();
    if ((vocabulary_.habits() & loneDash) != 0 && item.type == vtString &&
        std::string_view(value.text) == "-") {
        return true;  // the standard input
    }
    // As what it is read as: a deprecated value need not lie within the bounds.
    if (!item.holds(item.replaced(value), false, parse_.reason)) {
        parse_.told.make(checkFailed, {}, value.text, item.primaryName(), value.text);
        return false;
    }
    parse_.reason.clear();  // a Conversion may have left one, though it has read the text
    return true;
}

int ParseWatch::parseAside(const ItemRecord& item,
                           const std::string& argument,
                           const std::string& typed,
                           ParseResult& result,
                           std::string& error) {
    // Slow, and rare. A reading of its own, here, would sooner or later differ from that of the
    // parse.
    BasicParser parser(vocabulary_.flags() | flagUnknownIsError);
    item.configure(parser.option(item.allNames().c_str(), "", item.type, ""));
    Asking asking(*this, item);
    if (!parser.addHandler(&asking)) {
        throw std::bad_alloc();
    }
    // The first is the name of the program.
    const char* const arguments[] = {"", argument.c_str()};
    const int code = parser.parseArgsVector(2, arguments, &result);
    refine(parser.failure(), parse_.told.get());
    parse_.told = std::move(parser.failure());
    if (Failure* const failure = parse_.told.get()) {
        // It counts in the line of two arguments above, which nobody has typed.
        failure->index = 0;
        retype(*failure, typed);
    }
    error = code == resultOk ? "" : explained(parser.getErrorDesc(), parse_.told.get());
    const std::size_t quoted = error.find(argument);
    if (quoted != std::string::npos) {
        error.replace(quoted, argument.size(), typed);
    }
    return code;
}

ParseWatch::Session::Session(ParseWatch& watch,
                             const ParseResult& result,
                             std::vector<Aside> asides)
    : watch_(watch), outer_(std::exchange(watch.parse_, {})) {
    watch.parse_.asides = std::move(asides);
    const auto& positionals = watch.vocabulary_.positionals();
    // A text that is parsed into a result goes on with the places behind those that are taken.
    const StoredOption* const given =
        positionals.empty() ? nullptr : result.find(positionals[0]->primaryName());
    watch.parse_.positionalCount = given == nullptr ? 0 : given->size();
}

std::string ParseWatch::explained(std::string message, const Failure* failure) const {
    if (!parse_.instead.empty()) {
        return parse_.instead;
    }
    if (!parse_.reason.empty()) {
        return messages::withReason(message, parse_.reason);
    }
    const ItemRecord* const item = failure == nullptr ? nullptr : vocabulary_.find(failure->option);
    if (item == nullptr) {
        return message;
    }
    // Nobody has typed the name of a positional item: it is told otherwise that an action takes
    // none.
    const auto& positionals = vocabulary_.positionals();
    if (failure->kind == actionRefusesOption && !positionals.empty() &&
        item == positionals.front()) {
        const ItemRecord* const action = vocabulary_.find(failure->value);
        return action == nullptr ? message : messages::takesNo(*action, *item);
    }
    // A word is told that a number is wanted; a number that does not fit, which ones do.
    if (failure->kind == valueOfOtherType && item->isBounded() &&
        looksLikeNumber(failure->value.c_str(), item->type)) {
        message.pop_back();  // its full stop
        return messages::withReason(message, item->boundsText());
    }
    return message;
}

bool ParseWatch::routesPositionals() const {
    const auto& positionals = vocabulary_.positionals();
    return positionals.size() > 1 || (positionals.size() == 1 && !positionals.front()->takesMany());
}

bool ParseWatch::onValueParse(const char* name, const Value& value) {
    const ItemRecord* const item = vocabulary_.find(name);
    // An item that was declared plainly inside a handler, in the middle of this parse.
    if (item == nullptr) {
        return true;
    }
    const bool isRouted = routesPositionals() && item == vocabulary_.positionals().front();
    return isRouted ? takePositional(value) : accepts(*item, value);
}

bool ParseWatch::takePositional(const Value& value) {
    const std::size_t last = vocabulary_.positionals().size() - 1;
    const std::size_t number = parse_.positionalCount++;
    const ItemRecord& item = *vocabulary_.positionals()[std::min(number, last)];
    if (number > last && !item.takesMany()) {
        parse_.instead = messages::unexpectedArgument(value.text);
        parse_.told.make(unexpectedArgument, {}, value.text, {}, value.text);
        return false;
    }
    // A single item is stored as what it is: the parse has converted the value already.
    if (last == 0 || !item.needsOwnParse()) {
        return accepts(item, value) || refusePositional(item, value);
    }
    const std::string argument = filled("--{}={}", {item.primaryName(), value.text});
    std::string error;
    const int code = parseAside(item, argument, value.text, positionalAside(item), error);
    parse_.instead = error;
    return code == resultOk;
}

// The plain message would name the item under which the arguments are stored.
bool ParseWatch::refusePositional(const ItemRecord& item, const Value& value) {
    parse_.instead = messages::withReason(
        messages::vetoedValue(value.text, item.primaryName(), value.text), parse_.reason);
    return false;
}

ParseResult& ParseWatch::positionalAside(const ItemRecord& item) {
    for (const Aside& each : parse_.asides) {
        if (each.item == &item && each.origin == Origin::commandLine) {
            return *each.result;
        }
    }
    // All values of an item in one result, where they keep their order.
    parse_.asides.push_back({&item, Origin::commandLine, std::make_unique<ParseResult>()});
    return *parse_.asides.back().result;
}

}  // namespace zarn_3_3::internal
