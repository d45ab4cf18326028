#include "diagnostics/suggestions.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <string_view>
#include <utility>

#include "diagnostics/likeness.h"
#include "help/help_renderer.h"
#include "options/registered_option_storage.h"
#include "recognizers/abbreviation_parser.h"
#include "recognizers/failure.h"
#include "text/cut_argument.h"
#include "text/filled.h"
#include "text/number_text.h"

namespace zarn_3_3::internal {
namespace {

using Texts = std::vector<std::string>;

// An argument cut as the parse cuts it.
struct TypedOption {
    explicit TypedOption(const std::string& argument) {
        std::string_view value;
        splitOptionValue(argument, &name, &value, globalTextLocale());
        const std::string_view whole = argument;
        const auto begin = static_cast<std::size_t>(name.data() - whole.data());
        dashes = whole.substr(0, begin);
        rest = whole.substr(begin + name.size());
    }
    TypedOption(std::string&&) = delete;  // the views would dangle

    bool hasOneDash() const { return leadingDashLength(dashes) == dashes.size(); }

    std::string_view dashes;
    std::string_view name;
    std::string_view rest;  // the value, and what stands between
};

// The item that failed, as its author declared it; null when the failure is about none.
const OptionDescription* itemOf(const Failure& failure, const RegisteredOptionStorage& registry) {
    std::size_t index = 0;
    const bool isFound = findOption(failure.option, index, registry) == resultSuccess;
    return isFound ? &registry.asDeclared(index) : nullptr;
}

// Who may not know of an item is not told its name by a mistake.
bool isHidden(const OptionDescription& item, const RegisteredOptionStorage& registry) {
    return isSectionVisible(registry.sectionKey(item), true);
}

// Several positional items take no names: whose argument is whose could not be told any more.
bool isGivenByPlace(const OptionDescription& item, const RegisteredOptionStorage& registry) {
    return item.isPositional && registry.takesAnyText(registry.firstPositional());
}

Texts allowedValues(const OptionDescription& item) {
    Texts all;
    for (const variant_t& value : item.allowedValues) {
        all.push_back(item.toString(value));
    }
    return all;
}

Texts actionNames(const RegisteredOptionStorage& registry) {
    Texts all;
    for (std::size_t i = 0; i < registry.items().size(); ++i) {
        const OptionDescription& item = registry.items()[i];
        if (item.kind == kindAction && !isHidden(item, registry)) {
            all.push_back(item.primaryName());
        }
    }
    return all;
}

// Names like the one that was typed, with everything else as it was typed.
Texts namesLike(const Failure& failure, const RegisteredOptionStorage& registry) {
    const TypedOption cut(failure.argument);
    const KeptTexts& forms = registry.names().forms();
    // Nothing is near to an empty text: a plain word was meant for no option.
    Nearest nearest(cut.dashes.empty() ? std::string_view() : cut.name);
    const auto written = [&](std::string_view name) {
        // One dash has letters behind it in such a tool: a longer name needs two.
        const bool isLong = failure.isShortBehindDash && cut.hasOneDash() && name.size() > 1;
        return filled("{}{}{}{}", {isLong ? cut.dashes : "", cut.dashes, name, cut.rest});
    };
    for (std::uint32_t number = 0; number < forms.size(); ++number) {
        const std::string_view form = forms[number];
        // Few are: what costs more is only done for those.
        if (!nearest.isNear(form)) {
            continue;
        }
        const std::string argument = written(form);
        // A name with a dash in front or a "=" in it cannot be typed.
        const bool isTypable = TypedOption(argument).name == form;
        const OptionDescription& item = registry.items()[registry.names().firstWithForm(number)];
        // What cannot be told is never taken: as the nearest it would put out the others.
        if (isTypable && !isHidden(item, registry) && !isGivenByPlace(item, registry)) {
            nearest.take(form);
        }
    }
    Texts arguments;
    std::transform(
        nearest.found().begin(), nearest.found().end(), std::back_inserter(arguments), written);
    return arguments;
}

// Allowed values like the one that was typed, in the argument in which that stands.
Texts valuesLike(const Failure& failure, const OptionDescription& item) {
    // A value that does not stand in the argument leaves no place for another.
    const Texts allowed = failure.valueAt == elsewhere ? Texts() : allowedValues(item);
    Nearest nearest(failure.value);
    for (std::size_t i = 0; i < allowed.size(); ++i) {
        const std::string& value = allowed[i];
        // A value that holds the separator would be cut when it is typed.
        const bool isCut = item.tokenizer != 0 && value.find(item.tokenizer) != std::string::npos;
        const bool isDeprecated = item.deprecatedValues.count(item.allowedValues[i]) != 0;
        if (!isCut && !isDeprecated && nearest.isNear(value)) {
            nearest.take(value);
        }
    }
    Texts arguments;
    for (const std::string_view value : nearest.found()) {
        std::string argument = failure.argument;
        argument.replace(failure.valueAt, failure.value.size(), value);
        arguments.push_back(std::move(argument));
    }
    return arguments;
}

// "--level=-5" for "--level" "-5"; not when that names another option, or looks like no value.
Texts joined(const Failure& failure,
             const OptionDescription& item,
             const RegisteredOptionStorage& registry) {
    const TypedOption next(failure.value);
    std::size_t index = 0;
    const bool isNumber = item.type != vtString;
    if ((isNumber && !looksNegative(failure.value)) ||
        findOption(next.name, index, registry) == resultSuccess ||
        registry.findBeginning(next.name).first != KeptTexts::none) {
        return {};
    }
    const TypedOption cut(failure.argument);
    // No second "=" behind one that is there, and none between a letter and its value.
    const bool isOpen = !cut.rest.empty() || (failure.isGluedBehindDash && cut.hasOneDash());
    return {filled("{}{}{}", {failure.argument, isOpen ? "" : "=", failure.value})};
}

// "--color" for "--color=yes", "--no-color" for "--color=no".
Texts withoutValue(const Failure& failure, const OptionDescription& item) {
    const TypedOption cut(failure.argument);
    const std::string_view noes[] = {"0", "false", "no", "off"};
    const bool isMeantFalse =
        item.type == vtBool &&
        std::find(std::begin(noes), std::end(noes), failure.value) != std::end(noes);
    if (!isMeantFalse) {
        return {filled("{}{}", {cut.dashes, cut.name})};
    }
    // What begins none of the names begins a "no-" form, of which it says the opposite.
    const bool isName = std::any_of(item.names.begin(), item.names.end(), [&](const auto& name) {
        return std::string_view(name).substr(0, cut.name.size()) == cut.name;
    });
    return {filled("{}{}{}", {cut.dashes, isName ? noPrefix : "", item.primaryName()})};
}

}  // namespace

std::vector<std::string> candidatesOf(const Failure& failure,
                                      const RegisteredOptionStorage& registry) {
    Texts found;
    const OptionDescription* const item = itemOf(failure, registry);
    if (failure.kind == ambiguousOption) {
        makeOptionNamesList(registry, TypedOption(failure.argument).name, found);
    } else if (failure.kind == noAction) {
        found = actionNames(registry);
    } else if (item == nullptr) {
        return found;
    } else if (failure.kind == valueNotAllowed) {
        found = allowedValues(*item);
    } else if (failure.kind == ambiguousValue) {
        found = allowedValues(*item);
        const auto end = std::remove_if(found.begin(), found.end(), [&](const std::string& value) {
            return value.compare(0, failure.value.size(), failure.value) != 0;
        });
        found.erase(end, found.end());
    } else if (failure.kind == actionRefusesOption) {
        found.assign(item->tags.begin(), item->tags.end());
    }
    return found;
}

std::vector<std::string> suggestionsFor(const Failure& failure,
                                        const RegisteredOptionStorage& registry) {
    // Nobody knows which item these are about.
    if (failure.kind == unknownArgument || failure.kind == malformedOption) {
        return namesLike(failure, registry);
    }
    const OptionDescription* const item = itemOf(failure, registry);
    if (item == nullptr) {
        return {};
    }
    switch (failure.kind) {
        case valueNotAllowed:
            return valuesLike(failure, *item);
        case valueLooksLikeOption:
            return joined(failure, *item, registry);
        case switchWithValue:
        case booleanWithValue:
            return withoutValue(failure, *item);
        default:
            return {};
    }
}

}  // namespace zarn_3_3::internal
