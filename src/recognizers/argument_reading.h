// How an argument is read: what is an option, which item its name means, where its value stands.
//
// Shared by the recognisers and by those who want to know beforehand what they would make of it.

#ifndef ZARN_RECOGNIZERS_ARGUMENT_READING_H
#define ZARN_RECOGNIZERS_ARGUMENT_READING_H

#include <cstddef>
#include <string>
#include <string_view>

#include "options/name_index.h"
#include "options/registered_option_storage.h"
#include "text/cut_argument.h"
#include "text/text_locale.h"
#include "zarn/parser.h"

namespace zarn_3_3::internal {

// The parts of an argument that may be an option; they point into it.
struct CutOption {
    std::string_view name;
    std::string_view value;  // empty without one
    bool hasValue = false;   // whether one is attached

    // "--" with a value behind it, or a third dash: it looks like an option, and can be none.
    bool isNamed() const { return !name.empty() && name[0] != '-'; }
};

// Whether the argument may be an option; `cut` is left as it was when not. A lone dash is none:
// many tools take it for the standard input.
[[gnu::always_inline]] inline bool cutOption(const std::string& argument,
                                             TextLocale locale,
                                             CutOption& cut) {
    if (argument.size() < 2 || !mayBeDash(argument[0]) || getDashLength(argument, 0) == 0) {
        return false;
    }
    cut.value = {};
    cut.hasValue = splitOptionValue(argument, &cut.name, &cut.value, locale);
    return true;
}

// How many names a text stands for.
enum class Matches { none, one, several };

// A form that is typed in full beats every longer one; of the others those match that begin with
// the text, letter by letter. One match is taken: `item` and `form`, the name or "no-" form, tell
// which. Nothing is ever guessed beyond that, however close a name may be: a tool could do
// something else than its user asked for.
[[gnu::always_inline]] inline Matches resolveName(std::string_view text,
                                                  const RegisteredOptionStorage& registry,
                                                  std::size_t& item,
                                                  std::string_view& form) {
    if (findOption(text, item, registry) == resultSuccess) {
        form = text;
        return Matches::one;
    }
    const PrefixIndex::Found found = registry.findBeginning(text);
    if (found.first == KeptTexts::none) {
        return Matches::none;
    }
    // The index counts forms, not items: two names of one item that begin so are ambiguous too.
    if (!found.isOnly) {
        return Matches::several;
    }
    form = registry.names().forms()[found.first];
    item = registry.names().firstWithForm(found.first);
    return Matches::one;
}

// For switches and booleans the name is all there is to say.
inline bool needsValue(const OptionDescription& option) {
    return option.type != vtNull && option.type != vtBool;
}

// Whether an argument that stands behind an option in want of a value is none, but most likely the
// next option. A negative number looks the same, and has to be attached.
inline bool isNoValue(const std::string& next) { return !next.empty() && next.front() == '-'; }

// Whether the positional item takes an argument that is no option.
[[gnu::always_inline]] inline bool isForPositional(const std::string& argument,
                                                   int flags,
                                                   const RegisteredOptionStorage& registry) {
    // Without the flag every argument is taken that is no option: the recogniser of options, which
    // is asked as well, takes precedence.
    const bool isRefused =
        (flags & flagPositionalWithoutDash) != 0 && !argument.empty() &&
        (argument[0] == '-' || (registry.isEveryDashRefused() && leadingDashLength(argument) != 0));
    return !isRefused && registry.firstPositional() != NameIndex::none;
}

}  // namespace zarn_3_3::internal

#endif  // ZARN_RECOGNIZERS_ARGUMENT_READING_H
