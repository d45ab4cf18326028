#include "completion/line_walk.h"

#include <string_view>

#include "log/zarn_log.h"
#include "parser/basic_parser.h"
#include "parser/parse_driver.h"
#include "recognizers/argument_reading.h"

namespace zarn_3_3::internal {
namespace {

class LineWalk {
public:
    explicit LineWalk(const BasicParser& parser)
        : registry_(parser.vocabulary()), flags_(parser.creationFlags()) {}

    void take(const std::string& word) {
        // In the order in which a parse decides.
        if (place_.isBehindOptions()) {
            ++place_.plainWords;
        } else if (!takeValue(word) && !takeTerminator(word) && !takeOption(word)) {
            takePlain(word);
        }
    }

    const WordPlace& place() const { return place_; }

private:
    bool takeValue(const std::string& word) {
        const bool isTaken = place_.waiting != NameIndex::none && !isNoValue(word);
        // A word with a dash shows that the value was forgotten, and is read as what it looks like.
        place_.waiting = NameIndex::none;
        return isTaken;
    }

    bool takeTerminator(const std::string& word) {
        place_.isBehindTerminator = word == endOfOptions;
        return place_.isBehindTerminator;
    }

    bool takeOption(const std::string& word) {
        CutOption cut;
        if (!cutOption(word, globalTextLocale(), cut)) {
            return false;
        }
        const NamedItem match(cut.name, registry_);
        // An ambiguous name is refused; one that nobody has may be a positional argument.
        if (match.item == NameIndex::none || !cut.isNamed()) {
            return match.isAmbiguous;
        }
        const OptionDescription& item = registry_.items()[match.item];
        if (item.kind == kindAction) {
            // Whatever was typed: groups and modifiers name actions so.
            place_.given.insert(item.primaryName());
        }
        // No value is empty: "--level=" looks for one in the next word too.
        if (waitsForValue(item) && cut.value.empty()) {
            place_.waiting = match.item;
        }
        return true;
    }

    void takePlain(const std::string& word) {
        if (isForPositional(word, flags_, registry_)) {
            ++place_.plainWords;
            place_.isInRest = (flags_ & flagPositionalTakesRest) != 0;
        }
    }

    const RegisteredOptionStorage& registry_;
    int flags_;
    WordPlace place_;
};

}  // namespace

NamedItem::NamedItem(std::string_view name, const RegisteredOptionStorage& registry) {
    std::string_view form;
    isAmbiguous = resolveName(name, registry, item, form) == Matches::several;
}

bool waitsForValue(const OptionDescription& item) {
    return needsValue(item) && !item.isValueOptional;
}

WordPlace placeBehind(const std::vector<std::string>& words, const BasicParser& parser) {
    LineWalk walk(parser);
    for (std::size_t i = 0; i < words.size(); ++i) {
        // A parse takes the switch of the log out, when it is the first argument.
        if (i > 0 || !isLogSwitch(words[i])) {
            walk.take(words[i]);
        }
    }
    return walk.place();
}

}  // namespace zarn_3_3::internal
