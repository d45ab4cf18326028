// What a parse found, read by name.

#ifndef ZARN_TYPED_RESULT_H
#define ZARN_TYPED_RESULT_H

#include <initializer_list>
#include <new>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "zarn/result.h"
#include "zarn/typed/engine.h"
#include "zarn/typed/value.h"

namespace zarn_3_3 {

// How a parse ended, and what it found. It is true when the parse went well.
//
//     const zarn::Result result = parser.parse(argc, argv);
//     if (!result) {
//         std::cerr << result.text() << '\n';
//         return result.code();
//     }
//
// It may outlive its parser, whose vocabulary it keeps. After a failure it holds what was found
// until then. Moving leaves the source to be destroyed or assigned to, and nothing else.
//
// `name` is any name of an option, whole and without dashes. A name that is not declared is a
// mistake of the author and a std::logic_error.
//
// Which value counts: the last one of the command line; else the last one of the option files; else
// that of the environment; else the default. A deprecated value is read as its replacement. Texts
// of type const char* and std::string_view are valid until the result is destroyed.
//
// The plain result, behind ->, has one walk, and each of these functions ends it.
//
// Exceptions: std::logic_error as above; std::bad_alloc when memory runs out, in a query too; what
// a Conversion of your own throws.
class [[nodiscard]] Result final {
public:
    // For the parser, which makes it.
    explicit Result(internal::Outcome* outcome) noexcept : outcome_(outcome) {}

    explicit operator bool() const noexcept { return code() == resultOk; }

    // A ResultCode.
    int code() const noexcept { return outcome_->code; }

    // Why the parse failed; empty when it did not. Valid as long as the result.
    const char* text() const noexcept { return outcome_->text; }

    IParseResult* operator->() const noexcept { return outcome_->plain; }
    operator IParseResult&() const noexcept { return *outcome_->plain; }

    Origin origin(const char* name) const {
        Value last;
        return findValues(outcome_.get(), name, last, nullptr);
    }

    // Whether the option was given: on the command line, in an option file or in the environment.
    bool isGiven(const char* name) const { return origin(name) > Origin::byDefault; }

    // The value that counts; see get<T>(value). Nothing when there is none, or when it cannot be
    // read as a T.
    template <typename T>
    std::optional<T> get(const char* name) const {
        Value last;
        findValues(outcome_.get(), name, last, nullptr);
        return zarn_3_3::get<T>(last);
    }

    // What get<T> reads, or `fallback` where that is nothing.
    template <typename T>
    T valueOr(const char* name, T fallback) const {
        return get<T>(name).value_or(std::move(fallback));
    }

    // All values that were given, in order, else the one of the environment or the default. Those
    // that get<T>(value) cannot read are left out, and so are occurrences without a value (but for
    // bool: one true for each occurrence of a switch).
    template <typename T>
    std::vector<T> values(const char* name) const {
        std::vector<Value> all;
        Value last;
        findValues(outcome_.get(), name, last, &all);
        std::vector<T> read;
        for (const Value& value : all) {
            if (std::optional<T> next = zarn_3_3::get<T>(value)) {
                read.push_back(*std::move(next));
            }
        }
        return read;
    }

    // The occurrences of the options named, on the command line and in option files, in order
    // across all of them, each with its own values. Of two names of the same option the first
    // counts.
    //
    // The texts of the names are not copied. Of several positional items all arguments are those of
    // the first. When a handler parses into the same result inside an event, values of the option
    // in progress may go to the occurrence that came in between.
    std::vector<Occurrence> occurrences(std::initializer_list<const char*> names) const {
        return findOccurrences(outcome_.get(), names.begin(), names.size());
    }

    // The arguments that stood behind the terminator "--", in order, as const char*,
    // std::string_view or std::string. With flagPositionalBehindTerminator they are values of the
    // positional items as well.
    template <typename Text = const char*>
    std::vector<Text> arguments() const {
        static_assert(internal::isText<Text>, "arguments are texts");
        std::vector<Text> found;
        const char* argument = nullptr;
        int status = outcome_->plain->getFirstArgument(&argument);
        while (status == statusFound) {
            found.emplace_back(argument);
            status = outcome_->plain->getNextArgument(&argument);
        }
        if (status == statusException) {
            throw std::bad_alloc();
        }
        return found;
    }

    // The outcome, for the parser, which goes on with it.
    [[nodiscard]] internal::Outcome* release() noexcept { return outcome_.take(); }

private:
    internal::Owner<internal::Outcome, &internal::releaseOutcome> outcome_;
};

}  // namespace zarn_3_3

#endif  // ZARN_TYPED_RESULT_H
