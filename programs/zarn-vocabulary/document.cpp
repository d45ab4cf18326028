#include "document.h"

#include <algorithm>
#include <cstddef>
#include <map>
#include <utility>

#include "names.h"
#include "notes.h"
#include "shown_items.h"

namespace vocabulary {
namespace {

bool isShort(const std::string& name) { return name.size() == 1; }

std::string primaryForm(const Item& item) { return typedName(item.names.front()); }

void appendForms(std::vector<std::string>& forms, const Item& item, const std::string& name) {
    forms.push_back(typedName(name));
    if (item.type == Type::boolean) {
        forms.push_back(typedName(noPrefix + name));
    }
}

std::vector<std::string> typedForms(const Item& item) {
    std::vector<std::string> forms;
    for (const bool takesShort : {true, false}) {
        for (const std::string& name : item.names) {
            if (isShort(name) == takesShort) {
                appendForms(forms, item, name);
            }
        }
    }
    return forms;
}

Text listOf(Style style, const std::vector<std::string>& texts) {
    Text list;
    for (const std::string& text : texts) {
        if (!list.empty()) {
            list.push_back({Style::plain, ", "});
        }
        list.push_back({style, text});
    }
    return list;
}

Text defaultOf(const Item& item) {
    if (item.defaultValue.empty() || item.type == Type::toggle) {
        return {};
    }
    if (item.type != Type::boolean || item.isPositional) {
        return {
            {Style::value, item.defaultValue}
        };
    }
    const std::string& name = item.names.front();
    return {
        {Style::option, typedName(item.defaultValue == "0" ? noPrefix + name : name)}
    };
}

Text separatorOf(const Item& item) {
    if (!takesValue(item) || item.separator.empty()) {
        return {};
    }
    return {
        {Style::value, item.separator}
    };
}

Text deprecatedOf(const Item& item) {
    Text text;
    for (const DeprecatedValue& deprecated : item.deprecated) {
        if (!text.empty()) {
            text.push_back({Style::plain, ", "});
        }
        text.push_back({Style::value, deprecated.value});
        text.push_back({Style::plain, " (use "});
        text.push_back({Style::value, deprecated.replacement});
        text.push_back({Style::plain, ")"});
    }
    return text;
}

// What has no section stands under a title for what it is.
enum class Group { none, actions, places, options };

Group groupOf(const Item& item) {
    return item.kind == Kind::action ? Group::actions
           : item.isPositional       ? Group::places
                                     : Group::options;
}

const char* titleOf(Group group) {
    return group == Group::actions ? "Actions" : group == Group::places ? "Arguments" : "Options";
}

// Chapters stand in the order of the first items of their sections.
class DocumentBuilder {
public:
    explicit DocumentBuilder(const Description& description)
        : description_(description), items_(description) {
        for (const Section& section : description.sections) {
            titles_.emplace(section.key, section.title);
        }
    }

    Document built() {
        Document document;
        document.name = description_.name;
        document.version = description_.version;
        document.summary = description_.summary;
        document.usages = usages();
        document.chapters = chapters();
        document.notes = notesOn(description_, items_);
        return document;
    }

private:
    std::vector<Usage> usages() const {
        std::vector<Usage> usages;
        for (const Item* const action : items_.actions()) {
            usages.push_back(usageOf(action));
        }
        if (usages.empty()) {
            usages.push_back(usageOf(nullptr));
        }
        return usages;
    }

    Usage usageOf(const Item* action) const {
        Usage usage;
        if (action != nullptr) {
            usage.action = primaryForm(*action);
            usage.actionValue = valueNameOf(*action);
        }
        for (const Item* const item : items_.all()) {
            if (!ShownItems::goesWith(*item, action)) {
                continue;
            }
            if (item->isPositional) {
                usage.places.push_back(valueNameOf(*item));
            } else {
                usage.hasOptions = true;
            }
        }
        usage.hasTerminator = takesTerminator(description_) && !usage.places.empty();
        return usage;
    }

    std::vector<Chapter> chapters() const {
        std::map<std::string, std::size_t> places;
        std::map<std::pair<std::size_t, Group>, Chapter> ordered;
        for (const Item* const item : items_.all()) {
            const std::size_t place = places.emplace(item->section, places.size()).first->second;
            const std::string title = titleOfSection(item->section);
            const Group group = title.empty() ? groupOf(*item) : Group::none;
            Chapter& chapter = ordered[{place, group}];
            chapter.title = title.empty() ? titleOf(group) : title;
            chapter.entries.push_back(entryOf(*item));
        }
        std::vector<Chapter> chapters;
        chapters.reserve(ordered.size());
        for (auto& [place, chapter] : ordered) {
            chapters.push_back(std::move(chapter));
        }
        return chapters;
    }

    std::string titleOfSection(const std::string& key) const {
        const auto found = titles_.find(key);
        return found != titles_.end() && !found->second.empty() ? found->second : key;
    }

    Entry entryOf(const Item& item) const {
        Entry entry;
        entry.valueName = valueNameOf(item);
        entry.help = item.help;
        if (!item.isPositional) {
            entry.names = typedForms(item);
        }
        addFact(entry, FactKind::values, listOf(Style::value, item.values));
        addFact(entry, FactKind::defaultValue, defaultOf(item));
        addFact(entry, FactKind::separator, separatorOf(item));
        addFact(entry, FactKind::deprecated, deprecatedOf(item));
        addFact(entry, FactKind::actions, listOf(Style::option, actionsOf(item)));
        // Several places have no names that count.
        if (item.isPositional && items_.places().size() == 1) {
            addFact(entry, FactKind::byName, listOf(Style::option, typedForms(item)));
        }
        return entry;
    }

    static void addFact(Entry& entry, FactKind kind, Text text) {
        if (!text.empty()) {
            entry.facts.push_back({kind, std::move(text)});
        }
    }

    std::vector<std::string> actionsOf(const Item& item) const {
        std::vector<std::string> forms;
        for (const Item* const action : items_.actions()) {
            if (item.kind == Kind::modifier && ShownItems::goesWith(item, action)) {
                forms.push_back(primaryForm(*action));
            }
        }
        return forms;
    }

    const Description& description_;
    ShownItems items_;
    std::map<std::string, std::string> titles_;
};

}  // namespace

Document documentOf(const Description& description) { return DocumentBuilder(description).built(); }

std::string labelOf(FactKind kind) {
    switch (kind) {
        case FactKind::values:
            return "Values";
        case FactKind::defaultValue:
            return "Default";
        case FactKind::separator:
            return "Separator";
        case FactKind::deprecated:
            return "Deprecated";
        case FactKind::actions:
            return "With";
        default:
            return "By name";
    }
}

}  // namespace vocabulary
