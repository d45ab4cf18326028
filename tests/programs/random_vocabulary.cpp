#include "random_vocabulary.h"

#include <algorithm>
#include <set>

#include "names.h"

namespace vocabulary {
namespace {

using Texts = std::vector<std::string>;

// Drops names that an item before has already, as declarations do, and items without one.
void keepNamesApart(Description& description) {
    std::set<std::string> taken;
    auto& items = description.items;
    for (Item& item : items) {
        const auto isTaken = [&](const std::string& name) {
            return taken.count(name) != 0 || taken.count(noPrefix + name) != 0;
        };
        auto& names = item.names;
        names.erase(std::remove_if(names.begin(), names.end(), isTaken), names.end());
        const Texts forms = formsOf(item);
        taken.insert(forms.begin(), forms.end());
    }
    items.erase(
        std::remove_if(
            items.begin(), items.end(), [](const Item& item) { return item.names.empty(); }),
        items.end());
}

// At most so many bytes, and no part of a character.
std::string beginningOf(const std::string& text, std::size_t size) {
    const bool isInside =
        size < text.size() && (static_cast<unsigned char>(text[size]) & 0xc0U) == 0x80;
    return text.substr(0, size + (isInside ? 1 : 0));
}

bool isNumber(Type type) {
    return type != Type::toggle && type != Type::boolean && type != Type::text;
}

}  // namespace

std::string RandomVocabulary::name() {
    std::string name = some(Texts{"", "", "", "", "no", "no-"});
    for (int length = 1 + upTo(3); length > 0; --length) {
        name += some(Texts{"a", "b", "n", "\xc3\xa4", "-", "ab"});
    }
    return name.front() == '-' ? "o" + name : name;
}

std::string RandomVocabulary::value(Type type) {
    if (isNumber(type)) {
        return some(Texts{"1", "2", "12", "16"});
    }
    return type == Type::boolean ? some(Texts{"0", "1"})
                                 : some(Texts{"a", "ab", "abb", "b", "ba", "bab", "c:a", "c,a"});
}

void RandomVocabulary::addName(Item& item) {
    if (item.names.size() < 3) {
        item.names.push_back(name());
    }
}

void RandomVocabulary::chooseKind(Item& item, const Description& description) {
    item.kind = some(std::vector<Kind>{Kind::option, Kind::option, Kind::action, Kind::modifier});
    item.tags.clear();
    for (const Item& other : description.items) {
        if (item.kind == Kind::modifier && other.kind == Kind::action && once(2)) {
            item.tags.push_back(primaryName(other));
        }
    }
    if (item.kind == Kind::modifier && item.tags.empty()) {
        item.kind = Kind::option;
    }
}

void RandomVocabulary::chooseType(Item& item) {
    item.type = some(std::vector<Type>{Type::toggle,
                                       Type::boolean,
                                       Type::boolean,
                                       Type::int32,
                                       Type::uint32,
                                       Type::int64,
                                       Type::uint64,
                                       Type::real,
                                       Type::text,
                                       Type::text,
                                       Type::text,
                                       Type::text});
    chooseValues(item);
    chooseSeparator(item);
    chooseDefault(item);
}

void RandomVocabulary::chooseValues(Item& item) {
    item.values.clear();
    item.deprecated.clear();
    if (item.type == Type::toggle || once(2)) {
        return;
    }
    for (int count = 1 + upTo(2); count > 0; --count) {
        item.values.push_back(value(item.type));
    }
    if (once(3)) {
        item.deprecated.push_back({value(item.type), item.values.front()});
    }
}

void RandomVocabulary::chooseDefault(Item& item) {
    item.defaultValue = item.type == Type::toggle || !once(4) ? "" : value(item.type);
}

void RandomVocabulary::chooseSeparator(Item& item) {
    item.separator = item.type == Type::toggle ? "" : some(Texts{"", ",", ":"});
}

void RandomVocabulary::addItem(Description& description) {
    Item item;
    addName(item);
    if (once(3)) {
        addName(item);
    }
    chooseKind(item, description);
    chooseType(item);
    item.isPositional = item.type != Type::toggle && item.kind != Kind::action && once(5);
    description.items.push_back(item);
}

void RandomVocabulary::changeItem(Item& item, const Description& description) {
    const Item before = item;
    switch (upTo(9)) {
        case 0:
            return addName(item);
        case 1:
            item.names.erase(item.names.begin());
            return;
        case 2:
            return chooseKind(item, description);
        case 3:
            chooseType(item);
            if (isNumber(before.type) && (isNumber(item.type) || item.type == Type::text)) {
                item.separator = before.separator;
                item.defaultValue = before.defaultValue;
                item.values = before.values;
                item.deprecated = before.deprecated;
            }
            return;
        case 4:
            return chooseValues(item);
        case 5:
            return chooseDefault(item);
        case 6:
            return chooseSeparator(item);
        case 7:
            item.isPositional = !item.isPositional && item.type != Type::toggle;
            return;
        case 8:
            item.values.clear();
            item.deprecated.clear();
            return;
        default:
            if (!item.values.empty()) {
                item.values.push_back(value(item.type));
            }
    }
}

void RandomVocabulary::chooseFlags(Description& description) { description.flags = upTo(31) * 2; }

void RandomVocabulary::chooseGroups(Description& description) {
    Texts actions;
    for (const Item& item : description.items) {
        if (item.kind == Kind::action && !once(4)) {
            actions.push_back(primaryName(item));
        }
    }
    description.groups = {actions};
}

Description RandomVocabulary::description() {
    Description made;
    chooseFlags(made);
    for (int count = 1 + upTo(4); count > 0; --count) {
        addItem(made);
    }
    keepNamesApart(made);
    chooseGroups(made);
    return made;
}

void RandomVocabulary::changeTool(Description& description) {
    switch (upTo(6)) {
        case 0:
            std::shuffle(description.items.begin(), description.items.end(), random_);
            break;
        case 1:
            description.items.erase(description.items.begin());
            break;
        case 2:
            description.flags ^= 2 << upTo(4);
            break;
        case 3:
            chooseGroups(description);
            break;
        default:
            addItem(description);
    }
}

// Few things at a time, so that most of what breaks is told by one line alone.
Description RandomVocabulary::nextVersionOf(const Description& before) {
    Description after = before;
    for (int count = 1 + upTo(1); count > 0 && !after.items.empty(); --count) {
        if (once(2)) {
            changeTool(after);
        } else {
            const auto at =
                static_cast<std::size_t>(upTo(static_cast<int>(after.items.size()) - 1));
            changeItem(after.items[at], before);
        }
        keepNamesApart(after);
    }
    return after;
}

std::string RandomVocabulary::word(const Description& description) {
    if (description.items.empty() || once(6)) {
        return some(Texts{"1", "a", "ab", "b", "ba", "1,2", "a:b", "--", "c"});
    }
    const Item& item = some(description.items);
    const std::string form = some(formsOf(item));
    const std::string beginning =
        once(2) ? form : beginningOf(form, 1 + static_cast<std::size_t>(upTo(5)));
    std::string word = (once(5) ? "-" : "--") + beginning;
    if (item.type == Type::toggle || item.type == Type::boolean || once(10)) {
        return word;
    }
    std::string given = item.values.empty() || once(5) ? value(item.type) : some(item.values);
    if (item.type == Type::text) {
        given = given.substr(0, 1 + static_cast<std::size_t>(upTo(3)));
    } else if (once(4)) {
        given = "0" + given;
    }
    if (once(6)) {
        given += some(Texts{",", ":"}) + value(item.type);
    }
    return once(8) ? given : word + "=" + given;
}

std::vector<std::string> RandomVocabulary::line(const Description& before,
                                                const Description& after) {
    std::vector<std::string> words;
    for (int count = upTo(4); count > 0; --count) {
        words.push_back(word(once(4) ? after : before));
    }
    return words;
}

}  // namespace vocabulary
