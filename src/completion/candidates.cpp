#include "completion/candidates.h"

#include <cstddef>

#include "completion/line_walk.h"
#include "completion/name_choice.h"
#include "parser/basic_parser.h"
#include "recognizers/argument_reading.h"
#include "text/cut_argument.h"

namespace zarn_3_3::internal {
namespace {

// The allowed values of one item.
class ValueChoice {
public:
    // `typed`: the value so far. Where it has no separator yet, rfind answers npos, and one more is
    // 0: the list is empty.
    ValueChoice(const OptionDescription& item, std::string_view typed)
        : item_(item),
          list_(item.tokenizer == 0 ? "" : typed.substr(0, typed.rfind(item.tokenizer) + 1)),
          beginning_(typed.substr(list_.size())) {}

    template <typename Offer>
    void visit(Offer offer) const {
        for (const variant_t& value : item_.allowedValues) {
            const std::string text = item_.toString(value);
            if (isOpen(text) && item_.deprecatedValues.count(value) == 0) {
                offer(std::string(list_) + text);
            }
        }
    }

private:
    // Nobody is led to a deprecated value, one that cannot be typed, or one that stands there
    // already.
    bool isOpen(std::string_view text) const {
        return !text.empty() && text.substr(0, beginning_.size()) == beginning_ &&
               (item_.tokenizer == 0 || text.find(item_.tokenizer) == std::string_view::npos) &&
               !isGiven(text);
    }

    bool isGiven(std::string_view text) const {
        std::string_view rest = list_;
        while (!rest.empty()) {
            const std::string_view given = rest.substr(0, rest.find(item_.tokenizer));
            if (given == text) {
                return true;
            }
            rest.remove_prefix(given.size() + 1);
        }
        return false;
    }

    const OptionDescription& item_;
    std::string_view list_;  // up to the last separator
    std::string_view beginning_;
};

class Completing {
public:
    Completing(const std::string& word, const WordPlace& place, const BasicParser& parser)
        : word_(word), place_(place), parser_(parser), registry_(parser.vocabulary()) {}

    Completion run() {
        // In the order in which a parse decides: behind the options a dash means nothing, and where
        // a value is waited for no name can stand.
        if (place_.isBehindOptions()) {
            offerRest();
        } else if (place_.waiting != NameIndex::none) {
            offerNext();
        } else if (getDashLength(word_, 0) != 0) {
            offerOption();
        } else if (registry_.firstPositional() != NameIndex::none) {
            offerPositional();
        } else if (word_.empty()) {
            offerNames("", "");
        }
        return std::move(completion_);
    }

private:
    // What stands behind the terminator is the tool's own, unless it wants it treated as the rest.
    void offerRest() {
        const bool isTaken =
            place_.isInRest || (parser_.creationFlags() & flagPositionalBehindTerminator) != 0;
        if (isTaken && registry_.firstPositional() != NameIndex::none) {
            offerPositional();
        }
    }

    void offerNext() {
        // With a dash in front a parse refuses it as a forgotten value, whatever it is.
        if (!isNoValue(word_)) {
            offerValues(registry_.items()[place_.waiting], "", word_);
        }
    }

    void offerOption() {
        CutOption cut;
        const bool isCut = cutOption(word_, globalTextLocale(), cut);
        if (isCut && cut.hasValue) {
            offerAttached(cut);
        } else {
            // A lone dash is no option to a parse, but the beginning of one here.
            const std::size_t nameAt = isCut ? word_.size() - cut.name.size() : word_.size();
            offerNames(std::string_view(word_).substr(0, nameAt), cut.name);
        }
    }

    void offerAttached(const CutOption& cut) {
        const std::size_t item = NamedItem(cut.name, registry_).item;
        if (cut.isNamed() && item != NameIndex::none && needsValue(registry_.items()[item])) {
            // Shells replace the whole word, so the name goes along as it was typed.
            const std::string_view head(word_.data(), word_.size() - cut.value.size());
            offerValues(registry_.items()[item], head, cut.value);
        }
    }

    void offerPositional() { offerValues(positionalItem(), "", word_); }

    // Where several take their arguments by their places, the last one takes all that are left.
    const OptionDescription& positionalItem() const {
        const std::size_t first = registry_.firstPositional();
        std::size_t number = first;
        std::size_t left = registry_.takesAnyText(first) ? place_.plainWords : 0;
        for (std::size_t i = first + 1; left > 0 && i < registry_.items().size(); ++i) {
            if (registry_.items()[i].isPositional) {
                number = i;
                --left;
            }
        }
        // The one that takes the words for all has lost its own type and values by that.
        return registry_.asDeclared(number);
    }

    // `head`: what of the word stands in front of the value.
    void offerValues(const OptionDescription& item, std::string_view head, std::string_view typed) {
        if (item.allowedValues.empty()) {
            // Any text may name a file; a number hardly does.
            completion_.takesFiles = item.type == vtString;
            return;
        }
        ValueChoice(item, typed).visit([&](const std::string& value) {
            // Where options may stand, it would be taken for one.
            if (!head.empty() || place_.isBehindOptions() || getDashLength(value, 0) == 0) {
                completion_.candidates.push_back({std::string(head) + value, {}});
            }
        });
    }

    void offerNames(std::string_view dashes, std::string_view beginning) {
        completion_.candidates = NameChoice(parser_, place_.given).namesOf(dashes, beginning);
    }

    const std::string& word_;
    const WordPlace& place_;
    const BasicParser& parser_;
    const RegisteredOptionStorage& registry_;
    Completion completion_;
};

}  // namespace

Completion completionsOf(const std::string& word,
                         const std::vector<std::string>& before,
                         const BasicParser& parser) {
    return Completing(word, placeBehind(before, parser), parser).run();
}

}  // namespace zarn_3_3::internal
