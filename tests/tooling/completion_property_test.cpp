// Whatever is declared and typed: what is offered, the parser recognises as what it was offered
// for.

#include <gtest/gtest.h>

#include <algorithm>
#include <initializer_list>
#include <random>
#include <string>
#include <vector>

#include "completion/candidates.h"
#include "parser/basic_parser.h"
#include "support/tool.h"

namespace zarn_3_3::completion_test {
namespace {

using testing_support::PlainTool;
using Words = std::vector<std::string>;

// What a parse announces, and whether all of it was recognised.
class Recorder final : public EventHandler {
public:
    bool onOptionParse(const char* name) override {
        names.emplace_back(name);
        return true;
    }
    Words names;
};

// A vocabulary out of few letters, so that names begin alike, belong to several items and look like
// "no-" forms; and lines that are right up to the word under the cursor.
class RandomLine {
public:
    explicit RandomLine(unsigned seed) : random_(seed), sharesNames_(upTo(1) == 0), tool_(flags()) {
        tool_->addHandler(&recorder_);
        for (int count = 1 + upTo(10); count > 0; --count) {
            declare();
        }
        tool_->option("zz", "", vtNull, "zarn_hidden");
        tool_->allowSimultaneousActions({name(), name(), name()});
        for (int count = upTo(3); count > 0; --count) {
            addWord();
        }
    }

    // Asks for a word, and has the parser read each candidate. The number of candidates.
    std::size_t check() {
        const OptionDescription& item = items()[static_cast<std::size_t>(upTo(size() - 1))];
        const std::string typed = some({"-", "--"}) + item.primaryName();
        std::string last;
        const std::size_t nameEnd = typed.find_first_of("= ");
        const bool isValue = needsValue(item) && upTo(1) == 0 && nameEnd == std::string::npos &&
                             isRead({typed + "=" + valueOf(item)}, &last) &&
                             last == item.primaryName();
        const Words before = words_;
        if (isValue && upTo(1) == 0) {
            words_.push_back(typed);
            return checkAt(valueOf(item).substr(0, static_cast<std::size_t>(upTo(2))), &item);
        }
        const std::string word =
            isValue ? typed + "=" + valueOf(item).substr(0, static_cast<std::size_t>(upTo(1)))
                    : typed.substr(0, std::min(static_cast<std::size_t>(1 + upTo(4)), nameEnd));
        return checkAt(word, isValue ? &item : nullptr);
    }

private:
    int upTo(int most) { return std::uniform_int_distribution<int>(0, most)(random_); }
    std::string some(std::initializer_list<const char*> all) {
        return all.begin()[upTo(static_cast<int>(all.size()) - 1)];
    }
    int flags() { return flagUnknownIsError | (upTo(1) == 0 ? flagPositionalWithoutDash : 0); }
    const OptionList& items() const { return parser().vocabulary().items(); }
    int size() const { return static_cast<int>(items().size()); }
    BasicParser& parser() const { return dynamic_cast<BasicParser&>(*tool_.parser); }
    static bool needsValue(const OptionDescription& item) {
        return item.type == vtString || item.type == vtS32;
    }

    std::string name() {
        std::string name = some({"", "", "", "no-", "-", "n"});
        for (int length = 1 + upTo(2); length > 0; --length) {
            name += some({"a", "b", "ab", "n", "o", "a", "b", "=", " ", "\xE2\x80\x94"});
        }
        return name;
    }

    // The help of an item is its number.
    void declare() {
        const das_variant_type_t types[] = {vtNull, vtBool, vtString, vtS32};
        const das_variant_type_t type = types[upTo(3)];
        const std::string names = name() + some({"", ","}) + name();
        const std::string help = std::to_string(items().size());
        const char* const section = upTo(5) == 0 ? "zarn_hidden" : "";
        const bool isAction = upTo(3) == 0;
        IOption& item = isAction ? tool_->action(names.c_str(), help.c_str(), type, section)
                                 : tool_->modifier(names.c_str(),
                                                   upTo(1) == 0 ? "" : name().c_str(),
                                                   help.c_str(),
                                                   type,
                                                   section);
        if (sharesNames_) {
            item.synonym(name().c_str());
        }
        if (type == vtString && upTo(1) == 0) {
            item.allowValue("a,b").allowValue("ab").allowValue("b").allowValue("-a").allowValue(
                "b c");
        }
        if (type == vtS32 && upTo(1) == 0) {
            item.allowValue(1).allowValue(12).allowValue(-1);
        }
        if (type == vtBool && !isAction &&
            upTo(1) == 0) {  // an action by default excludes all others
            item.defaultValue(true);
        }
    }

    std::string valueOf(const OptionDescription& item) {
        return item.type == vtString ? some({"b", "ab"}) : some({"1", "12"});
    }

    void addWord() {
        const OptionDescription& item = items()[static_cast<std::size_t>(upTo(size() - 1))];
        const std::string word = "--" + item.primaryName();
        Words added = needsValue(item) ? Words{word, valueOf(item)} : Words{word};
        Words all = words_;
        all.insert(all.end(), added.begin(), added.end());
        if (word != "--zz" && isRead(all)) {
            words_ = all;
        }
    }

    // Whether all words are recognised, and the last option that they name.
    bool isRead(Words words, std::string* last = nullptr) {
        words.emplace_back("--zz");
        parse(words);
        const Words& names = recorder_.names;
        if (last != nullptr && names.size() > 1) {
            *last = names[names.size() - 2];
        }
        return !names.empty() && names.back() == "zz";
    }

    int parse(const Words& words) {
        recorder_.names.clear();
        tool_.startNewResult();
        return tool_.parse(words);
    }

    std::size_t checkAt(const std::string& word, const OptionDescription* valueItem) {
        // The rules on actions look an item up by each of its names, of which one may be another's.
        const bool isRight = !sharesNames_ && !words_.empty() && parse(words_) == resultOk;
        const auto completion = internal::completionsOf(word, words_, parser());
        for (const internal::Candidate& candidate : completion.candidates) {
            checkOne(candidate, valueItem, isRight);
        }
        return completion.candidates.size();
    }

    void checkOne(const internal::Candidate& candidate,
                  const OptionDescription* valueItem,
                  bool isRight) {
        const OptionDescription& item =
            valueItem != nullptr ? *valueItem : items()[std::stoul(std::string(candidate.help))];
        Words words = words_;
        words.push_back(candidate.word);
        if (valueItem == nullptr && needsValue(item)) {
            words.back() += valueOf(item);
        }
        std::string last;
        EXPECT_TRUE(isRead(words, &last)) << words.back() << ": " << tool_->getErrorDesc();
        EXPECT_EQ(last, item.primaryName()) << testing::PrintToString(words);
        if (valueItem == nullptr) {
            EXPECT_EQ(parser().vocabulary().sectionKey(item), "") << candidate.word;
        }
        // Beside an action, and what belongs to it, nothing is offered that it refuses.
        if (isRight && valueItem == nullptr) {
            EXPECT_EQ(parse(words), resultOk) << words.back() << ": " << tool_->getErrorDesc();
        }
    }

    std::mt19937 random_;
    bool sharesNames_;
    Recorder recorder_;
    PlainTool tool_;
    Words words_;
};

TEST(Completion, OffersWhatTheParserRecognises) {
    std::size_t candidateCount = 0;
    for (unsigned seed = 0; seed < 3000 && !testing::Test::HasFailure(); ++seed) {
        SCOPED_TRACE(seed);
        candidateCount += RandomLine(seed).check();
    }
    EXPECT_GT(candidateCount, 3000U);
}

}  // namespace
}  // namespace zarn_3_3::completion_test
