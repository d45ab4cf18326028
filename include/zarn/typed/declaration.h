// How a vocabulary is written down: one expression for each item.
//
//     parser.declare("Output", {
//         zarn::option<int>("jobs,j", "How many at a time.").between(1, 64).into(jobs),
//         zarn::option<std::string>("tone", "How loud.").allow({"low", "high"}).into(tone),
//         zarn::option("quiet,q", "Say nothing.").into(quiet),
//         zarn::positional("file", "What to work on.").named("FILE").into(files),
//     });

#ifndef ZARN_TYPED_DECLARATION_H
#define ZARN_TYPED_DECLARATION_H

#include <cstdlib>
#include <initializer_list>
#include <limits>
#include <optional>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>

#include "zarn/typed/checks.h"
#include "zarn/typed/engine.h"
#include "zarn/typed/quantities.h"
#include "zarn/typed/target.h"
#include "zarn/typed/value.h"

namespace zarn_3_3 {

// One item of a vocabulary, with values of whatever type, until it is declared. It is made by
// option, action, modifier and positional.
class Item {
public:
    // For the parser, which takes it.
    internal::ItemDescription* take() noexcept { return description_.take(); }

protected:
    explicit Item(internal::ItemDescription* begun) noexcept : description_(begun) {}

    internal::Owner<internal::ItemDescription, &internal::releaseItem> description_;
};

namespace internal {

inline constexpr const char* noValueBetween = "no value lies between its bounds";

// What the code behind a failed assertion goes on with, so that the compiler says nothing else.
template <typename T>
T refusedAbove();

// Throws std::logic_error: a number does not fit the item.
[[noreturn]] inline void refuseNumber(const char* names,
                                      const variant_t& least,
                                      const variant_t& greatest) {
    mistake(names, "a number of its declaration does not fit: " + boundsText(least, greatest));
}

}  // namespace internal

// An item with values of type T, on which its settings are chained, in any order.
//
// Texts that are given as const char* are read when the item is declared, and must live until then;
// literals do.
//
// Exceptions: std::logic_error for a value that does not fit T, and for bounds in the wrong order;
// std::bad_alloc when memory runs out.
template <typename T>
class [[nodiscard]] Declaration final : public Item {
public:
    // For option, action, modifier and positional below, which say what is what.
    Declaration(internal::Role role, const char* names, const char* actions, const char* helpText)
        : Item(internal::beginItem(role, internal::typeCode<T>(), names, actions, helpText)) {
        if constexpr (internal::isNumber<T> && (sizeof(T) < sizeof(internal::Plain<T>))) {
            extras().least = internal::plainNumber(std::numeric_limits<T>::lowest());
            extras().greatest = internal::plainNumber(std::numeric_limits<T>::max());
        }
        if constexpr (internal::isNamed<T>) {
            for (const auto& each : Names<T>::table) {
                internal::allowValue(description_.get(), internal::nameIn<T>(each).name, {});
            }
        } else if constexpr (internal::isConverted<T> && !internal::isPath<T>) {
            internal::addCheck(description_.get(), new internal::Readable<T>());
        }
    }

    // Where the value goes when the whole parse has gone well; all variables of a vocabulary are
    // then written, or none. It must live until the last parse.
    //
    // A variable of type T, or an optional, takes the value that counts: the last one of the
    // command line, else the last one of the option files, else that of the environment, else the
    // default. A vector takes all that were given, in order, else what else counts. A switch goes
    // into a bool, or as the number of its occurrences into an integer; a text into a path, too.
    // Without any of these the variable stays as it is.
    template <typename V>
    Declaration&& into(V& variable) && {
        description_->target = &internal::TargetOf<T, V>::kind;
        description_->variable = &variable;
        return std::move(*this);
    }

    // Has a switch store `value` in the variable, in place of into. Several may share one variable,
    // with each other and with one option that goes into it: what was given last counts.
    //
    //     zarn::option("numeric,n", "Compare numbers.").stores(order, Order::numeric),
    //     zarn::option("random,R", "Shuffle.").stores(order, Order::random),
    template <typename V, typename U>
    Declaration&& stores(V& variable, U&& value) && {
        constexpr bool isVector = internal::VariableOf<V>::isVector;
        constexpr bool isFitting = !isVector && std::is_constructible_v<V, U>;
        static_assert(std::is_same_v<T, Switch>, "stores() is for switches, which take no value");
        static_assert(!isVector, "stores() wants a variable for one value, which a vector is not");
        static_assert(isVector || isFitting,
                      "stores() wants a constant of the type of its variable");
        if constexpr (isFitting) {
            using Kind = internal::ConstantOf<V>;
            extras().constant.hold(new V(std::forward<U>(value)), &Kind::release);
            description_->target = &Kind::kind;
            description_->variable = &variable;
        }
        return std::move(*this);
    }

    // Makes the value optional: without one, the option counts as given with `value`. One that is
    // given is attached, as in "--color=never"; the next argument never is. Help shows it as
    // "--color[=WHEN]". Option files and texts give the value always. An empty text is a mistake.
    template <typename U>
    Declaration&& withoutValue(const U& value) && {
        static_assert(!std::is_same_v<T, bool>, "a boolean takes no value");
        extras().impliedValue = setting(value);
        return std::move(*this);
    }

    // What is read when the item is not given. An empty text is no default. One that the item would
    // refuse is a std::logic_error when the item is declared.
    template <typename U>
    Declaration&& byDefault(const U& value) && {
        extras().defaultValue = setting(value);
        return std::move(*this);
    }

    // Shows what the variable given to `into` holds when the item is declared, which stays in it.
    // An empty text is none here, either.
    Declaration&& byDefault() && {
        static_assert(!std::is_same_v<T, Switch>, "a switch takes no value");
        static_assert(internal::isWritten<T>, "a default is shown by the write of its Conversion");
        description_->showsTarget = true;
        return std::move(*this);
    }

    // Adds to the values that are accepted; with none, every value of the type is. Texts may then
    // be abbreviated as long as they stay unambiguous.
    template <typename U>
    Declaration&& allow(std::initializer_list<U> values) && {
        static_assert(!internal::isNamed<T>, "an enumeration allows the names of its table");
        for (const U& value : values) {
            internal::allowValue(description_.get(), setting(value), {});
        }
        return std::move(*this);
    }

    // Accepts a former value too, with a warning that names its replacement, as which it is read.
    // Has no effect on an item without allowed values. The former value of an enumeration is a
    // text.
    template <typename U, typename R>
    Declaration&& deprecate(const U& former, const R& replacement) && {
        if constexpr (internal::isConverted<T>) {
            internal::allowValue(description_.get(), former, setting(replacement));
        } else {
            internal::allowValue(description_.get(), setting(former), setting(replacement));
        }
        return std::move(*this);
    }

    // Cuts one argument into several values at `mark`. Without this it is one value, commas and
    // all.
    Declaration&& cutAt(char mark) && noexcept {
        description_->separator = mark;
        return std::move(*this);
    }

    // Refuses values below the first and above the second bound, which are allowed themselves.
    template <typename Low, typename High>
    Declaration&& between(const Low& least, const High& greatest) && {
        if constexpr (internal::isNumber<T>) {
            return std::move(*this).atLeast(least).atMost(greatest);
        } else {
            const T low = bound(least);
            const T high = bound(greatest);
            if (high < low) {
                internal::mistake(description_->names, internal::noValueBetween);
            }
            return std::move(*this).check(
                [low, high](const T& value) { return !(value < low) && !(high < value); },
                internal::boundsText(internal::plainValue(low), internal::plainValue(high)));
        }
    }

    // Refuses values below the bound. A number that does not fit the type is a mistake.
    template <typename U>
    Declaration&& atLeast(const U& least) && {
        const T low = bound(least);
        if constexpr (internal::isNumber<T>) {
            extras().least = internal::plainNumber(low);
            return std::move(*this);
        } else {
            return std::move(*this).check([low](const T& value) { return !(value < low); },
                                          internal::boundsText(internal::plainValue(low), {}));
        }
    }

    // Refuses values above the bound.
    template <typename U>
    Declaration&& atMost(const U& greatest) && {
        const T high = bound(greatest);
        if constexpr (internal::isNumber<T>) {
            extras().greatest = internal::plainNumber(high);
            return std::move(*this);
        } else {
            return std::move(*this).check([high](const T& value) { return !(high < value); },
                                          internal::boundsText({}, internal::plainValue(high)));
        }
    }

    // Refuses values for which predicate(value), called with a T, is not true. `reason` is put
    // behind the message: "it must be even". Checks are asked in the order of the command line and,
    // for one value, behind the bounds of a number, in the order in which they were chained. How
    // often is not promised, and a predicate keeps no state.
    template <typename Predicate>
    Declaration&& check(Predicate predicate, std::string reason) && {
        static_assert(!std::is_same_v<T, Switch>, "a switch has no value to check");
        static_assert(std::is_same_v<T, Switch> || internal::isPredicate<Predicate, T>(),
                      "a check is called with a value of the option and answers true or false");
        if constexpr (std::is_invocable_r_v<bool, const Predicate&, const T&>) {
            internal::addCheck(
                description_.get(),
                new internal::Holds<T, Predicate>(std::move(predicate), std::move(reason)));
        }
        return std::move(*this);
    }

    // Refuses what is not the path of an existing file (of whatever kind, but no folder), or of an
    // existing folder. "-" is let through when the parser accepts it (loneDash).
    Declaration&& existingFile() && {
        return std::move(*this).exists(internal::Exists::Kind::file);
    }
    Declaration&& existingFolder() && {
        return std::move(*this).exists(internal::Exists::Kind::folder);
    }

    // Takes the value from the environment when the command line and the option files have none.
    // It is checked like a typed one. A boolean is 1, true, yes, on, or 0, false, no, off. An empty
    // variable counts as none.
    Declaration&& fromEnvironment(const char* variable) && {
        static_assert(!std::is_same_v<T, Switch>,
                      "a switch has no value to be taken from the environment: use option<bool>");
        extras().environment = variable;
        extras().readVariable = &std::getenv;
        return std::move(*this);
    }

    // Refuses a command line without the item; for a modifier, one with an action of its own.
    Declaration&& required() && noexcept {
        description_->isRequired = true;
        return std::move(*this);
    }

    // Refuses different values for its variable, of the item and of those that share the variable,
    // of all of which it is then true, whichever of them it is said of. The same value may be given
    // again. What counts less, as an option file beside the command line, is not compared. Without
    // into and stores it is the item alone that is compared.
    Declaration&& once() && noexcept {
        description_->isOnce = true;
        return std::move(*this);
    }

    // For an option that is used by itself, such as one that shows a help text: where it is given,
    // nothing is required, and no rule asked.
    Declaration&& alone() && noexcept {
        description_->isAlone = true;
        return std::move(*this);
    }

    // How help calls the value, as in "--output FILE"; of a positional item the item itself, in
    // messages too.
    Declaration&& named(const char* name) && noexcept {
        description_->shownName = name;
        return std::move(*this);
    }

private:
    internal::Extras& extras() { return internal::extrasOf(description_.get()); }

    template <typename U>
    static constexpr bool isSetting() {
        static_assert(!std::is_same_v<T, Switch>, "a switch takes no value");
        if constexpr (std::is_same_v<T, bool>) {
            static_assert(std::is_same_v<U, bool>, "the values of a boolean are true and false");
        } else if constexpr (internal::isNumber<T>) {
            static_assert(internal::isNumber<U>, "the values of this option are numbers");
            static_assert(!(std::is_integral_v<T> && std::is_floating_point_v<U>),
                          "the values of this option are whole numbers");
        } else if constexpr (internal::isText<T>) {
            static_assert(std::is_convertible_v<const U&, std::string_view>,
                          "the values of this option are texts");
        } else if constexpr (std::is_same_v<T, char>) {
            static_assert(std::is_same_v<U, char>, "the values of this option are characters");
        } else if constexpr (std::is_same_v<T, Bytes>) {
            static_assert(std::is_convertible_v<const U&, T>,
                          "the values of this option are sizes: write zarn::Bytes{64 << 10}");
        } else if constexpr (internal::isDuration<T>) {
            static_assert(std::is_convertible_v<const U&, T>,
                          "the values of this option are durations: write std::chrono::seconds(5)");
        } else {
            static_assert(std::is_convertible_v<const U&, T>,
                          "the values of this option have the type it is declared with");
        }
        return true;
    }

    // `value` as a T, or as a text. A mistake when a number does not fit.
    template <typename U>
    auto fitted(const U& value) const {
        static_assert(isSetting<U>());
        if constexpr (internal::isNumber<T>) {
            if (!internal::isKept<T>(value)) {
                using limits = std::numeric_limits<T>;
                internal::refuseNumber(description_->names,
                                       internal::plainNumber(limits::lowest()),
                                       internal::plainNumber(limits::max()));
            }
            return static_cast<T>(value);
        } else if constexpr (internal::isText<T>) {
            return std::string(value);
        } else if constexpr (std::is_convertible_v<const U&, T>) {
            return T(value);
        } else {
            return internal::refusedAbove<T>();
        }
    }

    template <typename U>
    variant_t setting(const U& value) const {
        static_assert(!(std::is_integral_v<T> && std::is_unsigned_v<T> && std::is_signed_v<U>),
                      "a signed number may not fit this option, which has none: write 3u, not 3");
        return internal::plainValue(fitted(value));
    }

    template <typename U>
    T bound(const U& value) const {
        static_assert(!internal::isText<T> && !internal::isNamed<T>,
                      "bounds are for numbers, durations and sizes; see allow and check");
        return fitted(value);
    }

    Declaration&& exists(internal::Exists::Kind kind) && {
        static_assert(internal::isText<T> || internal::isPath<T>,
                      "only texts and paths name files");
        internal::addCheck(description_.get(), new internal::Exists(kind));
        return std::move(*this);
    }
};

// An option that belongs to no action. Without a type it is a switch, which takes no value; the
// types of values are those of get<T>(value).
//
// names        without dashes, separated by ',': the primary one, a second, and a short third one
//              of at most two bytes
// description  its help text
//
// Throws std::bad_alloc when memory runs out.
template <typename T = Switch>
Declaration<T> option(const char* names, const char* description) {
    return {internal::Role::option, names, "", description};
}

// An action: what the tool is to do. Names, description and types as for option.
template <typename T = Switch>
Declaration<T> action(const char* names, const char* description) {
    return {internal::Role::action, names, "", description};
}

// An option that belongs to the actions with these primary names, separated by ',', and is refused
// with any other. Names, description and types as for option.
template <typename T = Switch>
Declaration<T> modifier(const char* names, const char* actionNames, const char* description) {
    return {internal::Role::option, names, actionNames, description};
}

// Takes the arguments that are no options. Several are filled in the order in which they are
// declared, one argument each; the last takes the rest, unless its variable has a place for one
// value only. A single one may be given by its name, too, several by their places alone.
//
// names        as for option
// actionNames  the primary names of the actions that the arguments belong to, separated by ',';
//              they are refused with any other. The same for all positional items of a vocabulary
// description  its help text
//
// Throws std::bad_alloc when memory runs out.
template <typename T = std::string>
Declaration<T> positional(const char* names, const char* actionNames, const char* description) {
    static_assert(!std::is_same_v<T, Switch> && !std::is_same_v<T, bool>,
                  "a positional item takes values");
    return {internal::Role::positional, names, actionNames, description};
}

// The same for arguments that belong to no action.
template <typename T = std::string>
Declaration<T> positional(const char* names, const char* description) {
    return positional<T>(names, "", description);
}

}  // namespace zarn_3_3

#endif  // ZARN_TYPED_DECLARATION_H
