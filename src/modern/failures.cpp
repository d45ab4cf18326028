#include "modern/failures.h"

#include <cstddef>
#include <string_view>

#include "diagnostics/suggestions.h"
#include "modern/messages.h"
#include "text/filled.h"
#include "text/listed.h"
#include "text/number_text.h"

namespace zarn_3_3::internal {
namespace {

// "'a', 'b' or 'c'"
std::string alternatives(const std::vector<std::string>& texts) {
    std::string list;
    std::size_t left = texts.size();
    for (const std::string& text : texts) {
        appendListed(list, filled("'{}'", {text}), --left, " or ");
    }
    return list;
}

}  // namespace

// A value stands at the end of its argument, in whatever way that was typed.
void retype(Failure& failure, const std::string& typed) {
    if (failure.valueAt != elsewhere) {
        // Bundled or glued, the argument ends with the same bytes, and a suggestion replaces these
        // alone.
        const std::string_view tail = std::string_view(failure.argument).substr(failure.valueAt);
        const std::size_t at = typed.rfind(tail);
        failure.valueAt = at == typed.size() - tail.size() ? at : elsewhere;
    }
    failure.argument = typed;
}

void retype(Vocabulary& vocabulary, const std::vector<Word>& words) {
    Failure* const failure = vocabulary.plain().failure().get();
    // What has no place on the command line, as in an option file, was not adapted.
    if (failure == nullptr || failure->index == 0) {
        return;
    }
    // What is suggested has to be an argument that these habits take.
    failure->isShortBehindDash = (vocabulary.habits() & shortNames) != 0;
    failure->isGluedBehindDash = areLettersGlued(vocabulary.habits());
    const Word& word = words[static_cast<std::size_t>(failure->index) - 1];
    failure->index = word.index;
    if (!word.typed.empty()) {
        retype(*failure, word.typed);
    }
}

void refine(FailureNote& note, const Failure* told) {
    Failure* const failure = note.get();
    if (failure == nullptr || told == nullptr) {
        return;
    }
    // For the plain parser every refusal is a veto of a handler.
    failure->kind = told->kind;
    failure->option = told->option;
    // Of several values in a positional argument the one that is wrong.
    if (failure->valueAt != elsewhere && told->valueAt != elsewhere &&
        failure->value == told->argument) {
        failure->value = told->value;
        failure->valueAt += told->valueAt;
    }
}

std::string toldInFull(Vocabulary& vocabulary, const std::string& text) {
    static const Failure unknown;  // its note was lost with the memory
    const Failure* const noted = vocabulary.plain().failure().get();
    const Failure& failure = noted != nullptr ? *noted : unknown;
    std::string told = text;
    // Looked for only here, where somebody reads them: parse() leaves them to diagnose().
    const std::vector<std::string> meant = suggestionsFor(failure, vocabulary.plain().vocabulary());
    if (!meant.empty()) {
        told = messages::didYouMean(told, alternatives(meant));
    }
    // In front, as compilers have it: editors find the line by it.
    if (!failure.file.empty()) {
        told =
            messages::atLine(failure.file, textFromNumber<unsigned long long>(failure.line), told);
    }
    return told;
}

}  // namespace zarn_3_3::internal
