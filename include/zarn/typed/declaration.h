// How a vocabulary is written down: one expression for each item.
//
//     parser.declare("main:Main options",
//                    {
//                        zarn::option<int>("jobs,j", "How many at a time.").byDefault(2),
//                        zarn::option<std::string>("tone", "How loud.").allow({"low", "high"}),
//                        zarn::option("quiet,q", "Say nothing."),
//                        zarn::positional("file", "What to work on."),
//                    });

#ifndef ZARN_TYPED_DECLARATION_H
#define ZARN_TYPED_DECLARATION_H

#include <initializer_list>
#include <optional>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include "zarn/option.h"
#include "zarn/parser.h"
#include "zarn/typed/value.h"

namespace zarn_3_3 {

// One item of a vocabulary, with values of whatever type, until it is declared.
//
// It keeps pointers to its names, actions and description, which must live until then (literals
// do), and copies of its values. It is made by option, action, modifier and positional.
class Item {
public:
    enum class Role { option, action, positional };

    // Declares the item in the section, which is "key:Title" or the key alone; see IParser::option,
    // also about names that are refused. No exception leaves it.
    void declareOn(IParser& parser, const char* section) const {
        IOption& item = role == Role::action
                            ? parser.action(names, description, type, section)
                            : parser.modifier(names, actionNames, description, type, section);
        if (role == Role::positional) {
            item.positional();
        }
        for (const AllowedValue& value : allowedValues) {
            if (value.replacement.type() == vtNull) {
                item.allowValue(value.value);
            } else {
                item.allowDeprecatedValue(value.value, value.replacement);
            }
        }
        if (defaultValue.type() != vtNull) {
            item.defaultValue(defaultValue);
        }
        if (separator) {
            item.tokenize(*separator);  // last: allowValue has values cut at ','
        }
    }

protected:
    struct AllowedValue {
        variant_t value;
        variant_t replacement;  // empty, unless the value is deprecated
    };

    Item(Role itsRole,
         das_variant_type_t itsType,
         const char* itsNames,
         const char* itsActions,
         const char* itsDescription) noexcept
        : role(itsRole),
          type(itsType),
          names(itsNames),
          actionNames(itsActions),
          description(itsDescription) {}

    Role role;
    das_variant_type_t type;
    const char* names;
    const char* actionNames;
    const char* description;
    std::vector<AllowedValue> allowedValues;
    variant_t defaultValue;  // empty: none
    std::optional<char> separator;
};

namespace internal {

// A text that a setting takes, read in the course of the call.
class TextSetting {
public:
    TextSetting(const char* given) noexcept : text(given) {}
    TextSetting(const std::string& given) noexcept : text(given.c_str()) {}

    operator variant_t() const { return variant_t(text); }

private:
    const char* text;
};

}  // namespace internal

// An item with values of type T, on which its settings are chained, in any order.
//
// Exceptions: settings throw std::bad_alloc when memory runs out.
template <typename T>
class Declaration final : public Item {
public:
    // What settings take as a value: a T, and for every type of text const char* or std::string.
    using Setting =
        std::conditional_t<internal::TypeCode<T>::value == vtString, internal::TextSetting, T>;

    // For option, action, modifier and positional below, which say what is what.
    Declaration(Role itsRole,
                const char* itsNames,
                const char* itsActions,
                const char* itsDescription) noexcept
        : Item(itsRole, internal::TypeCode<T>::value, itsNames, itsActions, itsDescription) {}

    // What is read when the item is not given. An empty text is no default.
    Declaration&& byDefault(const Setting& value) && {
        defaultValue = value;
        return std::move(*this);
    }

    // Adds to the values that are accepted; with none, every value of the type is. Texts may then
    // be abbreviated as long as they stay unambiguous.
    Declaration&& allow(std::initializer_list<Setting> values) && {
        for (const Setting& value : values) {
            allowedValues.push_back({value, {}});
        }
        return std::move(*this);
    }

    // Accepts a former value too, with a warning that names its replacement. Has no effect on an
    // item without allowed values.
    Declaration&& deprecate(const Setting& former, const Setting& replacement) && {
        allowedValues.push_back({former, replacement});
        return std::move(*this);
    }

    // Cuts one argument into several values at `mark`. Without this they are cut at ','; only with
    // flagValuesStayWhole, and no allowed values, they stay whole.
    Declaration&& cutAt(char mark) && noexcept {
        separator = mark;
        return std::move(*this);
    }

    // Leaves every argument one value, commas and all.
    Declaration&& whole() && noexcept { return std::move(*this).cutAt('\0'); }
};

// An option that belongs to no action. Without a type it is a switch, which takes no value; the
// types of values are those of get<T>(value).
//
// names        without dashes, separated by ',': the primary one, a second, and a short third one
// description  its help text
template <typename T = Switch>
Declaration<T> option(const char* names, const char* description) noexcept {
    return {Item::Role::option, names, nullptr, description};
}

// An action: what the tool is to do. Names, description and types as for option.
template <typename T = Switch>
Declaration<T> action(const char* names, const char* description) noexcept {
    return {Item::Role::action, names, nullptr, description};
}

// An option that belongs to the actions with these primary names, separated by ',', and is refused
// with any other. Names, description and types as for option.
template <typename T = Switch>
Declaration<T> modifier(const char* names,
                        const char* actionNames,
                        const char* description) noexcept {
    return {Item::Role::option, names, actionNames, description};
}

// Takes the arguments that are no options; of several such items the one declared first takes them
// all. Names and description as for option.
template <typename T = std::string>
Declaration<T> positional(const char* names, const char* description) noexcept {
    return {Item::Role::positional, names, nullptr, description};
}

}  // namespace zarn_3_3

#endif  // ZARN_TYPED_DECLARATION_H
