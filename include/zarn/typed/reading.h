// What a result holds, read by name as C++ values and ranges.
//
// A result has one walk, and each of these functions ends it: a plain walk that was begun before,
// with IParseResult::get or present, does not go on with next where it was. What the functions
// return is read in full, so any of them may be called while a range is looped over.
//
// All of them read the whole command line. `name` is any name of an option, whole and without
// dashes; for an unknown one or null nothing is found.
//
// Texts of type const char* and std::string_view are valid until the result is destroyed.
//
// Exceptions: std::bad_alloc when memory runs out, in a query too (statusException).

#ifndef ZARN_TYPED_READING_H
#define ZARN_TYPED_READING_H

#include <initializer_list>
#include <map>
#include <new>
#include <optional>
#include <string_view>
#include <utility>
#include <vector>

#include "zarn/result.h"
#include "zarn/typed/value.h"

namespace zarn_3_3 {

// Where the values of an option come from.
enum class Origin {
    absent,     // not given, and without a default (or with one whose text is empty)
    byDefault,  // not given, but with a default
    given,      // on the command line or in an option file
};

// One occurrence of an option: "--include=a,b" is one with two values.
struct Occurrence {
    std::string_view name;      // the name that was asked for
    int position = 0;           // its number in the running sequence; those of its values follow
    std::vector<Value> values;  // none for a switch; see get<T>(value)
};

namespace internal {

inline constexpr int lineEnd = 0x7fffffff;

inline Value checked(Value value) {
    if (value.status == statusException) {
        throw std::bad_alloc();
    }
    return value;
}

// The values of the option, or its default.
inline std::vector<Value> valuesOf(IParseResult& result, const char* name) {
    std::vector<Value> found;
    for (Value value = checked(result.get(name, 0, lineEnd)); value.status == statusFound;
         value = checked(result.next(name))) {
        found.push_back(value);
    }
    return found;
}

// A value belongs to the last occurrence before it. What is there already stays.
inline void addOccurrences(IParseResult& result,
                           const char* name,
                           std::map<int, Occurrence>& occurrences) {
    if (!result.present(name, 0, lineEnd)) {
        return;
    }
    std::map<int, Occurrence> found;
    for (int at = result.nextPosition(); at != lineEnd; at = result.nextPosition()) {
        found.emplace(at, Occurrence{name, at, {}});
    }
    for (const Value& value : valuesOf(result, name)) {
        auto owner = found.upper_bound(value.position);
        if (value.text != nullptr && owner != found.begin()) {
            (--owner)->second.values.push_back(value);
        }
    }
    occurrences.merge(found);
}

}  // namespace internal

// Whether the option was given. Ends a plain walk.
inline Origin origin(IParseResult& result, const char* name) {
    // No occurrence lies in an empty range, but a default does not ask for the range.
    if (result.present(name, 0, 0)) {
        return Origin::byDefault;
    }
    return result.present(name, 0, internal::lineEnd) ? Origin::given : Origin::absent;
}

// Whether the option was given; a default does not count. Ends a plain walk.
inline bool isGiven(IParseResult& result, const char* name) {
    return origin(result, name) == Origin::given;
}

// The first value that was given, else the default; see get<T>(value). Option files come after the
// command line, so it overrules them. Ends a plain walk.
template <typename T>
std::optional<T> get(IParseResult& result, const char* name) {
    return get<T>(internal::checked(result.get(name, 0, internal::lineEnd)));
}

// The last value that was given, else the default; see get<T>(value). Ends a plain walk.
template <typename T>
std::optional<T> getLast(IParseResult& result, const char* name) {
    const std::vector<Value> all = internal::valuesOf(result, name);
    return all.empty() ? std::nullopt : get<T>(all.back());
}

// What get<T> reads, or `fallback` where that is nothing: the option has neither a value nor a
// default, or it cannot be read as a T. Ends a plain walk.
template <typename T>
T valueOr(IParseResult& result, const char* name, T fallback) {
    return get<T>(result, name).value_or(std::move(fallback));
}

// All values that were given, in order, else the default alone. Those that get<T>(value) cannot
// read are left out, and so are occurrences without a value (but for bool: one true for each
// occurrence of a switch). Ends a plain walk.
template <typename T>
std::vector<T> values(IParseResult& result, const char* name) {
    std::vector<T> read;
    for (const Value& value : internal::valuesOf(result, name)) {
        if (std::optional<T> next = get<T>(value)) {
            read.push_back(*std::move(next));
        }
    }
    return read;
}

// The occurrences of the options named, in the order of the command line across all of them, each
// with its own values. A default is no occurrence. Of two names of the same option the first
// counts. Ends a plain walk.
//
// The texts of the names are not copied. Values are matched to occurrences by their numbers: when a
// handler parses into the same result inside an event, those of the option in progress may go to
// the occurrence that came in between.
inline std::vector<Occurrence> occurrences(IParseResult& result,
                                           std::initializer_list<const char*> names) {
    std::map<int, Occurrence> ordered;
    for (const char* const name : names) {
        internal::addOccurrences(result, name, ordered);
    }
    std::vector<Occurrence> found;
    found.reserve(ordered.size());
    for (auto& [position, occurrence] : ordered) {
        found.push_back(std::move(occurrence));
    }
    return found;
}

// The arguments that stood behind the terminator "--", in order, as const char*, std::string_view
// or std::string. With flagPositionalBehindTerminator they are values of the positional option as
// well. Ends a plain walk with getNextArgument, and only that.
template <typename Text = const char*>
std::vector<Text> arguments(IParseResult& result) {
    static_assert(internal::TypeCode<Text>::value == vtString, "arguments are texts");
    std::vector<Text> found;
    const char* argument = nullptr;
    int status = result.getFirstArgument(&argument);
    while (status == statusFound) {
        found.emplace_back(argument);
        status = result.getNextArgument(&argument);
    }
    if (status == statusException) {
        throw std::bad_alloc();
    }
    return found;
}

}  // namespace zarn_3_3

#endif  // ZARN_TYPED_READING_H
