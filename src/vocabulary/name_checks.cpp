// Mistakes in the names of an item.

#include <algorithm>
#include <iterator>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "options/registered_option_storage.h"
#include "text/cut_argument.h"
#include "vocabulary/checks.h"
#include "vocabulary/messages.h"

namespace zarn_3_3::internal {
namespace {

using Names = std::vector<std::string>;

// White space of the classic locale: what is found is not to depend on where it is looked for.
bool isTypable(const std::string& name) {
    return !name.empty() && getDashLength(name, 0) == 0 &&
           name.find_first_of(" \t\n\v\f\r=") == std::string::npos;
}

// Everything that means the item when it is typed in full.
Names formsOf(const OptionDescription& item) {
    Names forms;
    for (const std::string& name : item.names) {
        forms.push_back(name);
        if (item.type == vtBool) {
            forms.push_back(std::string(noPrefix) + name);
        }
    }
    return forms;
}

std::string_view commonBeginning(std::string_view a, std::string_view b) {
    const auto end =
        std::mismatch(a.begin(),
                      a.begin() + static_cast<std::ptrdiff_t>(std::min(a.size(), b.size())),
                      b.begin());
    return a.substr(0, static_cast<std::size_t>(end.first - a.begin()));
}

// Whether nothing but the item begins so. The index of beginnings knows whether several forms do,
// but not whether they are all of one item.
bool belongsTo(std::size_t number,
               std::string_view beginning,
               const RegisteredOptionStorage& registry) {
    const KeptTexts& forms = registry.names().forms();
    for (std::uint32_t form = 0; form < forms.size(); ++form) {
        if (forms[form].substr(0, beginning.size()) == beginning &&
            registry.names().firstWithForm(form) != number) {
            return false;
        }
    }
    return true;
}

void checkSpelling(const OptionDescription& item, Findings& findings) {
    for (const std::string& name : item.names) {
        if (!isTypable(name)) {
            findings.error("untypable-name", item.primaryName(), messages::untypableName(name));
        }
        // A declaration would have cut it there: a synonym is taken as it is.
        if (name.find(',') != std::string::npos) {
            findings.error("comma-in-name", item.primaryName(), messages::commaInName(name));
        }
        if (item.type == vtBool && name.compare(0, noPrefix.size(), noPrefix) == 0) {
            findings.warning("negated-name", item.primaryName(), messages::negatedName(name));
        }
    }
}

void checkClashes(std::size_t number, const RegisteredOptionStorage& registry, Findings& findings) {
    const OptionDescription& item = registry.items()[number];
    for (const std::string& form : formsOf(item)) {
        const std::size_t owner = registry.names().first(form);
        // What came behind the next declaration is no name, and belongs to nobody.
        if (owner != number && owner != NameIndex::none) {
            findings.error("name-clash",
                           item.primaryName(),
                           messages::nameClash(form, registry.items()[owner].primaryName()));
        }
    }
}

// Whether the item alone has names that begin so, and none that is just this. A name that begins
// another one is typed in full, and works.
bool isTie(std::size_t number,
           std::string_view beginning,
           const RegisteredOptionStorage& registry) {
    return registry.names().first(beginning) == NameIndex::none &&
           belongsTo(number, beginning, registry);
}

void checkTies(std::size_t number, const RegisteredOptionStorage& registry, Findings& findings) {
    const OptionDescription& item = registry.items()[number];
    // What has no letter in common is no tie. Three names may have one beginning, told once.
    std::set<std::string_view> seen{""};
    // "no-" forms tie where their names do, and are not told once more.
    for (auto first = item.names.begin(); first != item.names.end(); ++first) {
        for (auto second = std::next(first); second != item.names.end(); ++second) {
            const std::string_view common = commonBeginning(*first, *second);
            if (seen.insert(common).second && isTie(number, common, registry)) {
                findings.warning(
                    "own-tie", item.primaryName(), messages::ownTie(common, *first, *second));
            }
        }
    }
}

}  // namespace

void checkNames(std::size_t number, const RegisteredOptionStorage& registry, Findings& findings) {
    const OptionDescription& item = registry.items()[number];
    if (item.names.empty()) {
        findings.error("nameless", "", messages::nameless);
        return;
    }
    checkSpelling(item, findings);
    checkClashes(number, registry, findings);
    checkTies(number, registry, findings);
}

}  // namespace zarn_3_3::internal
