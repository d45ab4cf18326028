// What comes once for each name of a result: its default, and its first occurrence.

#include <utility>

#include "options/option_description.h"
#include "result/option_data.h"
#include "result/parse_result.h"
#include "result/sequence.h"

namespace zarn_3_3 {

using namespace internal;

void ParseResult::applyDefault(const OptionList& items) {
    for (std::size_t i = 0; i < items.size(); ++i) {
        const OptionDescription& item = items[i];
        // A switch has no value that could be its default.
        if (item.type == vtNull || !item.hasDefault) {
            continue;
        }
        const char* const text = keptDefault(item);
        for (const std::string& name : item.names) {
            // Each name has a number of its own. It is drawn first: when there is none left, no
            // entry is made.
            const int position = Sequence::draw();
            StoredOption& entry = findOrAdd(name);
            entry.defaultText = text;
            entry.defaultVariant = item.defaultVal;
            entry.defaultPosition = position;
        }
    }
}

// The text of the default, which a parse into the same result before may have kept.
const char* ParseResult::keptDefault(const OptionDescription& item) {
    const std::string text = item.getDefaultValueAsText();
    const StoredOption* const entry = find(item.primaryName());
    return entry != nullptr && text == entry->defaultText ? entry->defaultText : texts_.keep(text);
}

// The first occurrence of an option makes its entries anew, whatever another item with the same
// synonym, or a default, left there.
void ParseResult::replace(std::string_view name, OptionData& data, bool isGivenAway) {
    StoredOption fresh;
    // Complete before the old entry is touched: what cannot be stored changes nothing.
    fresh.store(data, isGivenAway);
    StoredOption& entry = findOrAdd(name);
    if (entry.size() != 0) {
        replaced_.emplace_back();
        replaced_.back() = entry.takeValues();
    }
    fresh.name = entry.name;
    entry = std::move(fresh);
}

}  // namespace zarn_3_3
