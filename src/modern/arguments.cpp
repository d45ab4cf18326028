#include "modern/arguments.h"

#include "modern/messages.h"
#include "parser/messages.h"
#include "parser/parse_driver.h"
#include "recognizers/messages.h"
#include "text/cut_argument.h"
#include "text/filled.h"
#include "text/number_text.h"
#include "zarn/typed/parser.h"

namespace zarn_3_3::internal {

bool isAtArgument(CommandLine line, int index) {
    return index < line.argc && line.argv[index] != nullptr;
}

bool isBundle(std::string_view argument) {
    const std::size_t dash = leadingDashLength(argument);
    argument.remove_prefix(dash);
    return dash != 0 && argument.size() > 1 && leadingDashLength(argument) == 0;
}

namespace {

bool hasEmptyValue(const CutArgument& cut) {
    return cut.isOption && cut.hasValue && cut.value.empty();
}

// The item whose value the next argument is; null when it is none.
const ItemRecord* takesNext(const Vocabulary& vocabulary, const std::string& argument) {
    const CutArgument cut = cutArgument(argument);
    if (!cut.isOption || !cut.value.empty()) {
        return nullptr;
    }
    // Abbreviations too. A name that could be several is left to the parse, which says so.
    const ItemRecord* const item = vocabulary.resolve(cut.name);
    return item != nullptr && item->needsValue() ? item : nullptr;
}

// Few command lines hold an argument that could be empty, or end in an empty value.
bool mayBeEmpty(CommandLine line) {
    for (int i = 1; isAtArgument(line, i); ++i) {
        const std::string_view argument = line.argv[i];
        if (argument.empty() || argument.back() == '=' || isClassicSpace(argument.back())) {
            return true;
        }
    }
    return false;
}

std::string refuse(Vocabulary& vocabulary,
                   DiagnosticKind kind,
                   const ItemRecord& item,
                   CommandLine line,
                   int index,
                   std::string message) {
    vocabulary.plain().failure().make(kind, {index, 0, {}}, line.argv[index], item.primaryName());
    return message;
}

// An empty argument that would be one of a positional item.
std::string refuseEmpty(Vocabulary& vocabulary, CommandLine line, int index) {
    const ItemRecord& item = *vocabulary.positionals().front();
    return refuse(
        vocabulary, emptyArgument, item, line, index, messages::emptyArgument(item.called()));
}

}  // namespace

bool hasDash(const std::string& argument) { return getDashLength(argument, 0) != 0; }

CutArgument cutArgument(const std::string& argument) {
    CutArgument cut;
    cut.isOption = cutOption(argument, globalTextLocale(), cut);
    return cut;
}

OptionWalk::OptionWalk(const Vocabulary& vocabulary, CommandLine line)
    : vocabulary_(vocabulary), line_(line) {}

bool OptionWalk::isAtEnd() const {
    if (!isAtArgument(line_, index_) || argument() == endOfOptions) {
        return true;
    }
    // From the first positional argument on, the rest may belong to another program: "--help" there
    // is not ours.
    return vocabulary_.has(flagPositionalTakesRest) && !vocabulary_.positionals().empty() &&
           waiting_ == nullptr && !hasDash(argument());
}

void OptionWalk::next(const std::string& parsed) {
    // As parsed: "-xf" waits for what "-f" waits for.
    waiting_ = takesNext(vocabulary_, parsed);
    ++index_;
}

std::string wrongEmptyArgument(Vocabulary& vocabulary, CommandLine line) {
    if (!mayBeEmpty(line)) {
        return "";
    }
    const auto& positionals = vocabulary.positionals();
    OptionWalk walk(vocabulary, line);
    for (; !walk.isAtEnd(); walk.next(walk.argument())) {
        const std::string argument = walk.argument();
        if (argument.empty() && walk.waiting() == nullptr && !positionals.empty()) {
            return refuseEmpty(vocabulary, line, walk.index());
        }
        // It ends in "=" or a blank, as of "--output=$EMPTY", and the parse would look for the
        // value in the next argument, also where the option may do without one.
        const CutArgument cut = cutArgument(argument);
        const ItemRecord* const item = hasEmptyValue(cut) ? vocabulary.resolve(cut.name) : nullptr;
        if (item != nullptr && item->takesValue()) {
            return refuse(
                vocabulary,
                valueMissing,
                *item,
                line,
                walk.index(),
                messages::valueRequired(item->primaryName(), messages::inArgument(argument)));
        }
    }
    // Without these flags the rest is handed out as it is, and an empty argument is not lost.
    const bool isTaken = !positionals.empty() && (vocabulary.has(flagPositionalBehindTerminator) ||
                                                  vocabulary.has(flagPositionalTakesRest));
    for (int i = walk.index(); isTaken && isAtArgument(line, i); ++i) {
        if (*line.argv[i] == '\0') {
            return refuseEmpty(vocabulary, line, i);
        }
    }
    return "";
}

std::string wrongNamedArgument(Vocabulary& vocabulary, CommandLine line) {
    if (vocabulary.firstOfGroup() == nullptr) {
        return "";
    }
    OptionWalk walk(vocabulary, line);
    for (; !walk.isAtEnd(); walk.next(walk.argument())) {
        const std::string argument = walk.argument();
        const CutArgument cut = cutArgument(argument);
        const ItemRecord* const item = cut.isOption ? vocabulary.resolve(cut.name) : nullptr;
        if (item != nullptr && item->role == Role::positional) {
            return refuse(vocabulary,
                          givenByPlace,
                          *item,
                          line,
                          walk.index(),
                          messages::givenByPlace(item->called()));
        }
    }
    return "";
}

std::string wrongLongName(Vocabulary& vocabulary, CommandLine line) {
    if ((vocabulary.habits() & shortNames) == 0) {
        return "";
    }
    OptionWalk walk(vocabulary, line);
    for (; !walk.isAtEnd(); walk.next(walk.argument())) {
        const std::string argument = walk.argument();
        const std::string_view name = cutArgument(argument).name;
        // What is still a bundle was not taken apart. When it begins no name either, the parse
        // refuses it by itself.
        if (walk.waiting() == nullptr && isBundle(argument) && name.size() > 1 &&
            vocabulary.isBeginning(name)) {
            vocabulary.plain().failure().make(unknownArgument, {walk.index(), 0, {}}, argument);
            return messages::unknownArgument(argument);
        }
    }
    return "";
}

}  // namespace zarn_3_3::internal
