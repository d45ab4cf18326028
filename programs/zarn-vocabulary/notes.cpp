#include "notes.h"

#include <algorithm>
#include <string>
#include <utility>

#include "names.h"
#include "zarn/zarn.h"

namespace vocabulary {
namespace {

using Items = std::vector<const Item*>;

template <typename Predicate>
const Item* firstOf(const Items& items, Predicate predicate) {
    const auto found = std::find_if(items.begin(), items.end(), predicate);
    return found != items.end() ? *found : nullptr;
}

bool isNamedOption(const Item& item) { return !item.isPositional; }

bool hasSign(const Item* item) {
    return item->type == Type::int32 || item->type == Type::int64 || item->type == Type::real;
}

Span plain(std::string text) { return {Style::plain, std::move(text)}; }

// The groups, without actions that are hidden, as lists of actions that go together.
Text groupsOf(const Description& description, const Items& actions) {
    Text text;
    for (const std::vector<std::string>& group : description.groups) {
        Text list;
        for (const Item* const action : actions) {
            if (std::count(group.begin(), group.end(), action->names.front()) != 0) {
                list.push_back(plain(list.empty() ? "" : ", "));
                list.push_back({Style::option, typedName(action->names.front())});
            }
        }
        if (list.size() > 2) {  // more than one action, with what stands in front
            list.front() = plain(text.empty() ? "" : "; ");
            text.insert(text.end(), list.begin(), list.end());
        }
    }
    return text;
}

Text noteOnNothing(const Items& items) {
    return items.empty() ? Text{plain("The tool takes no options and no arguments.")} : Text{};
}

Text noteOnActions(const Description& description, const Items& actions) {
    if (actions.size() < 2) {
        return {};
    }
    Text note{plain("One action is given at a time.")};
    Text groups = groupsOf(description, actions);
    if (!groups.empty()) {
        note.push_back(plain(" These go together: "));
        note.insert(note.end(), groups.begin(), groups.end());
        note.push_back(plain("."));
    }
    return note;
}

Text noteOnAbbreviation(const Items& items) {
    if (firstOf(items, [](const Item* item) { return isNamedOption(*item); }) == nullptr) {
        return {};
    }
    std::string note = "A name may be cut short as long as no other one begins so.";
    const bool hasTexts = firstOf(items, [](const Item* item) {
                              return item->type == Type::text && !item->values.empty();
                          }) != nullptr;
    note.append(hasTexts ? " So may a value that stands in a list." : "");
    return {plain(note)};
}

Text noteOnDashes(const Items& items) {
    if (firstOf(items, [](const Item* item) { return isNamedOption(*item); }) == nullptr) {
        return {};
    }
    return {
        plain("One dash or two stand in front of a name. The dashes of word processors do as well:"
              " figure dash, en dash, em dash, horizontal bar and swung dash.")};
}

Text noteOnValues(const Items& items) {
    const Item* const option =
        firstOf(items, [](const Item* item) { return isNamedOption(*item) && takesValue(*item); });
    if (option == nullptr) {
        return {};
    }
    const std::string form = typedName(option->names.front());
    return {
        plain("A value stands behind the name as in "),
        {Style::option, form + "=" + valueNameOf(*option)},
        plain(", or in the next argument.")
    };
}

Text noteOnBooleans(const Items& items) {
    const Item* const boolean = firstOf(items, [](const Item* item) {
        return item->type == Type::boolean && isNamedOption(*item);
    });
    if (boolean == nullptr) {
        return {};
    }
    const std::string& name = boolean->names.front();
    return {
        {Style::option, typedName(noPrefix + name)},
        plain(" says the opposite of "),
        {Style::option, typedName(name)           },
        plain("; the last one counts.")
    };
}

Text noteOnTerminator(const Description& description, const Items& places) {
    if (places.empty()) {
        return {};
    }
    Text note;
    if (takesTerminator(description)) {
        note = {
            plain("What stands behind "),
            {Style::option, "--"},
            plain(" is no option, also when it begins with a dash.")
        };
    }
    if ((description.flags & zarn::flagPositionalTakesRest) != 0) {
        note.push_back(plain(std::string(note.empty() ? "" : " ") +
                             "Options stand before the first argument that is none."));
    }
    return note;
}

Text noteOnNegativeNumbers(const Description& description,
                           const Items& items,
                           const Items& places) {
    const Item* const option =
        firstOf(items, [](const Item* item) { return isNamedOption(*item) && hasSign(item); });
    Text note;
    if (option != nullptr) {
        note = {
            plain("A negative number is attached to the name of its option: "),
            {Style::option, typedName(option->names.front()) + "=-5"},
            plain(".")
        };
    }
    if (takesTerminator(description) && firstOf(places, hasSign) != nullptr) {
        note.push_back(plain(note.empty() ? "" : " "));
        note.push_back(plain("As an argument, a negative number stands behind "));
        note.push_back({Style::option, "--"});
        note.push_back(plain("."));
    }
    return note;
}

Text noteOnOptionFiles(const Items& items) {
    const Item* const option =
        firstOf(items, [](const Item* item) { return item->isOptionFile && isNamedOption(*item); });
    if (option == nullptr) {
        return {};
    }
    return {
        plain("A file that is named with "),
        {Style::option, typedName(option->names.front())},
        plain(" holds an argument a line. Blanks in front of it do not count, nor do lines that are"
              " empty or begin with "),
        {Style::value,  ";"                             },
        plain(" or "),
        {Style::value,  "#"                             },
        plain(". Nothing in it is quoted.")
    };
}

}  // namespace

std::vector<Text> notesOn(const Description& description, const ShownItems& items) {
    std::vector<Text> notes;
    for (Text& note : std::vector<Text>{
             noteOnNothing(items.all()),
             noteOnActions(description, items.actions()),
             noteOnAbbreviation(items.all()),
             noteOnDashes(items.all()),
             noteOnValues(items.all()),
             noteOnBooleans(items.all()),
             noteOnTerminator(description, items.places()),
             noteOnNegativeNumbers(description, items.all(), items.places()),
             noteOnOptionFiles(items.all()),
         }) {
        if (!note.empty()) {
            notes.push_back(std::move(note));
        }
    }
    return notes;
}

bool takesTerminator(const Description& description) {
    return (description.flags & zarn::flagPositionalBehindTerminator) != 0;
}

}  // namespace vocabulary
