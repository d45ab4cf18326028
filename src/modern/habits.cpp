#include "modern/habits.h"

#include "modern/messages.h"
#include "text/cut_argument.h"
#include "text/filled.h"
#include "text/number_text.h"
#include "zarn/typed/parser.h"

namespace zarn_3_3::internal {
namespace {

// Where no number has a sign, "-5" is more likely a misspelt option, and told as one.
bool hasSign(const ItemRecord& item) {
    return item.type == vtS32 || item.type == vtS64 || item.type == vtDouble;
}

// Takes the arguments of one command line.
class Adapting {
public:
    explicit Adapting(const Vocabulary& vocabulary) : vocabulary_(vocabulary) {}

    void add(const std::string& argument, const ItemRecord* waiting, int index) {
        const std::size_t before = words_.size();
        // What an option waits for is its value, whatever else it could be.
        if (waiting != nullptr && isValue(argument, hasSign(*waiting))) {
            join(argument);
        } else if (isPositional(argument)) {
            // By its name, since by its place the parser takes nothing with a dash in front. Of
            // several the first: under that all of them are stored.
            const std::string& name = vocabulary_.positionals().front()->primaryName();
            words_.push_back({filled("--{}={}", {name, argument}), argument});
        } else if (!addImplied(argument) && !addLetters(argument)) {
            words_.push_back({argument, ""});
        }
        for (std::size_t i = before; i < words_.size(); ++i) {
            words_[i].index = index;
        }
    }

    std::vector<Word> take() { return std::move(words_); }
    const std::string& last() const { return words_.back().text; }

private:
    bool has(Habit habit) const { return (vocabulary_.habits() & habit) != 0; }

    bool isName(const std::string& argument) const {
        return vocabulary_.isBeginning(cutArgument(argument).name);
    }

    // Whether the argument, though it begins with a dash, is a value where numbers may stand.
    bool isValue(const std::string& argument, bool isForNumbers) const {
        if (argument == "-") {
            return has(loneDash);
        }
        return has(negativeNumbers) && isForNumbers && looksNegative(argument) && !isName(argument);
    }

    bool isPositional(const std::string& argument) const {
        // Which of several the argument falls to is only known when the parse counts them.
        const auto& items = vocabulary_.positionals();
        bool isForNumbers = false;
        for (const ItemRecord* const item : items) {
            isForNumbers = isForNumbers || hasSign(*item);
        }
        return !items.empty() && isValue(argument, isForNumbers);
    }

    // The argument is the value of the one before it.
    void join(const std::string& argument) {
        // Attached, since a parse takes no argument with a dash in front for the value of another.
        Word& option = words_.back();
        option.typed =
            filled("{} {}", {option.typed.empty() ? option.text : option.typed, argument});
        option.text += option.text.back() == '=' ? argument : "=" + argument;
    }

    // "--color", which is "--color=always". False when the argument is no option of this kind.
    bool addImplied(const std::string& argument) {
        const CutArgument cut = cutArgument(argument);
        // Letters in a row are no name then, even where a name begins so.
        const bool isLong = !has(shortNames) || !isBundle(argument);
        const ItemRecord* const item =
            cut.isOption && !cut.hasValue && isLong ? vocabulary_.resolve(cut.name) : nullptr;
        if (item == nullptr || !item->hasOptionalValue()) {
            return false;
        }
        words_.push_back({withImplied(argument, *item), argument});
        return true;
    }

    static std::string withImplied(std::string_view option, const ItemRecord& item) {
        return filled("{}={}", {option, item.plain->toString(item.extras().impliedValue)});
    }

    // "-xvf" and "-k2". False when the argument is neither.
    bool addLetters(const std::string& argument) {
        if (!isBundle(argument) || (!has(shortNames) && isName(argument))) {
            return false;
        }
        // All of them or none: an argument of which only a part is taken could do anything.
        std::vector<Word> letters;
        std::string_view rest = std::string_view(argument).substr(leadingDashLength(argument));
        while (!rest.empty()) {
            const std::string_view letter = rest.substr(0, 1);
            const ItemRecord* const item = vocabulary_.find(letter);
            rest.remove_prefix(1);
            if (item == nullptr) {
                return false;
            }
            std::string text = filled("-{}", {letter});
            if (item->takesValue() && !rest.empty()) {
                // Where letters alone stand behind a dash, "=" is a byte of the value as any other.
                const bool isAttached = rest[0] == '=' && !areLettersGlued(vocabulary_.habits());
                if (!isAttached && !has(gluedValues)) {
                    return false;
                }
                text.append("=").append(rest.substr(isAttached ? 1 : 0));
                rest = {};
            } else if (item->hasOptionalValue()) {
                text = withImplied(text, *item);
            } else if (!rest.empty() && !has(bundles)) {
                return false;
            }
            // Each is told as the whole argument: nobody has typed the letter alone.
            letters.push_back({text, argument});
        }
        words_.insert(words_.end(), letters.begin(), letters.end());
        return true;
    }

    const Vocabulary& vocabulary_;
    std::vector<Word> words_;
};

// Whether one of the words is quoted there; the first one counts.
bool quoteTypedAt(std::string& message, std::size_t at, const std::vector<Word>& words) {
    for (const Word& word : words) {
        const std::size_t length = word.text.size();
        // With the quote behind it, since one argument may begin with another.
        if (message.compare(at, length, word.text) == 0 && message[at + length] == '\'') {
            if (!word.typed.empty()) {
                message.replace(at, length, word.typed);
            }
            return true;
        }
    }
    return false;
}

}  // namespace

std::vector<Word> adaptArguments(const Vocabulary& vocabulary, CommandLine line) {
    Adapting adapting(vocabulary);
    OptionWalk walk(vocabulary, line);
    for (; !walk.isAtEnd(); walk.next(adapting.last())) {
        adapting.add(walk.argument(), walk.waiting(), walk.index());
    }
    std::vector<Word> words = adapting.take();
    // No habit reaches behind the options.
    for (int i = walk.index(); isAtArgument(line, i); ++i) {
        words.push_back({line.argv[i], "", i});
    }
    return words;
}

void quoteTyped(std::string& message, const std::vector<Word>& words) {
    for (const std::string_view before : {"argument '", "argument: '"}) {
        // The value, which may hold anything, stands in front of the argument or behind it.
        for (const std::size_t at : {message.find(before), message.rfind(before)}) {
            if (at != std::string::npos && quoteTypedAt(message, at + before.size(), words)) {
                return;
            }
        }
    }
}

}  // namespace zarn_3_3::internal
