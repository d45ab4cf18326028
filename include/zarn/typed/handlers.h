// Event handlers that are lambdas, registered for as long as they live.
//
//     const zarn::OnUnknown collect(parser, [&](const char* argument) {
//         unknown.emplace_back(argument);
//         return false;
//     });
//
// A lambda may take the name or argument as std::string_view, too. One that returns nothing answers
// true. What the answers mean, how long the texts are valid and what happens to exceptions stands
// at EventHandler; several handlers of one event are called in the order of their addresses, so
// none should rely on another.

#ifndef ZARN_TYPED_HANDLERS_H
#define ZARN_TYPED_HANDLERS_H

#include <new>
#include <type_traits>
#include <utility>

#include "zarn/event_handler.h"
#include "zarn/parser.h"
#include "zarn/value.h"

namespace zarn_3_3 {

// Registers a handler of whatever class as long as it lives. Parser and handler must outlive it.
class Registration final {
public:
    // Throws std::bad_alloc when memory runs out. A handler that is registered already must not be
    // registered again.
    [[nodiscard]] Registration(IParser& itsParser, EventHandler& itsHandler)
        : parser(itsParser), handler(itsHandler) {
        if (!parser.addHandler(&handler)) {
            throw std::bad_alloc();
        }
    }
    Registration(const Registration&) = delete;
    Registration& operator=(const Registration&) = delete;
    ~Registration() { parser.removeHandler(&handler); }

private:
    IParser& parser;
    EventHandler& handler;
};

namespace internal {

template <typename Function, typename... Arguments>
bool answerOf(Function& function, const Arguments&... arguments) {
    if constexpr (std::is_void_v<decltype(function(arguments...))>) {
        function(arguments...);
        return true;
    } else {
        return function(arguments...);
    }
}

}  // namespace internal

// Hears of every option that is recognised: function(name). The answer is ignored.
//
// This and the classes below hold the function; the parser must outlive them. Their constructors
// throw std::bad_alloc when memory runs out.
template <typename Function>
class OnOption final : public EventHandler {
public:
    [[nodiscard]] OnOption(IParser& parser, Function heard)
        : function(std::move(heard)), registration(parser, *this) {}

    bool onOptionParse(const char* name) override { return internal::answerOf(function, name); }

private:
    Function function;
    Registration registration;
};

// Hears of every value, and may refuse it with the answer false: function(name, value). The text of
// the value is valid during the call only; get<T>(value) reads it.
template <typename Function>
class OnValue final : public EventHandler {
public:
    [[nodiscard]] OnValue(IParser& parser, Function heard)
        : function(std::move(heard)), registration(parser, *this) {}

    bool onValueParse(const char* name, const Value& value) override {
        return internal::answerOf(function, name, value);
    }

private:
    Function function;
    Registration registration;
};

// Hears of every argument that nothing declared takes, and may take care of it with the answer
// false: function(argument).
template <typename Function>
class OnUnknown final : public EventHandler {
public:
    [[nodiscard]] OnUnknown(IParser& parser, Function heard)
        : function(std::move(heard)), registration(parser, *this) {}

    bool onUknownArgument(const char* argument) override {
        return internal::answerOf(function, argument);
    }

private:
    Function function;
    Registration registration;
};

}  // namespace zarn_3_3

#endif  // ZARN_TYPED_HANDLERS_H
