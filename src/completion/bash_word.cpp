#include "completion/bash_word.h"

namespace zarn_3_3::internal {
namespace {

// What means something to bash outside quotes, some of it in front of a word alone: elsewhere a
// backslash does no harm. Control characters are never inserted.
constexpr std::string_view special = " \"'\\$`&|;<>()*?[]{}!#~";

// Begins what bash puts something else in place of.
constexpr std::string_view expanded = "$`";

// What a backslash takes its meaning from, and what means something, between double quotes.
constexpr std::string_view specialInDouble = "\"\\$`";
// "!" asks for the history, and a backslash in front of it would stay in the word.
constexpr std::string_view unsayableInDouble = "\"\\$`!";
constexpr std::string_view unsayableInSingle = "'";

bool isOneOf(char c, std::string_view all) { return all.find(c) != std::string_view::npos; }

std::string withBackslashes(std::string_view text) {
    std::string quoted;
    for (const char c : text) {
        if (isOneOf(c, special)) {
            quoted += '\\';
        }
        quoted += c;
    }
    return quoted;
}

}  // namespace

BashWord::BashWord(std::string_view typed, std::string_view breaks) {
    std::size_t at = 0;
    while (at < typed.size()) {
        // Single quotes alone keep bash from expanding. What stands behind a backslash never comes
        // here.
        isExpanded_ = isExpanded_ || (openQuote_ != '\'' && isOneOf(typed[at], expanded));
        at = openQuote_ != '\0' ? takeQuoted(typed, at) : takePlain(typed, at, breaks);
    }
}

// Both answer where the next character begins.
std::size_t BashWord::takeQuoted(std::string_view typed, std::size_t at) {
    if (typed[at] == openQuote_) {
        openQuote_ = '\0';
        return at + 1;
    }
    const bool isEscaped = openQuote_ == '"' && typed[at] == '\\' && at + 1 < typed.size() &&
                           isOneOf(typed[at + 1], specialInDouble);
    at += isEscaped ? 1 : 0;
    text_ += typed[at];
    return at + 1;
}

std::size_t BashWord::takePlain(std::string_view typed, std::size_t at, std::string_view breaks) {
    const char c = typed[at];
    if (c == '"' || c == '\'') {
        openQuote_ = c;
        quotedFrom_ = text_.size();
        return at + 1;
    }
    if (c == '\\') {
        // At the end of the word it stands for nothing: what it is for is still to be typed.
        text_ += typed.substr(at + 1, 1);
        return at + 2;
    }
    if (isOneOf(c, breaks)) {
        // Readline leaves "=" and ":" to the word before, and begins the next one with "@".
        brokenAt_ = text_.size() + (c == '@' ? 0 : 1);
    }
    text_ += c;
    return at + 1;
}

std::optional<std::string> BashWord::insertionFor(std::string_view word) const {
    // What bash will put there is not known here, and quoting it would make it mean itself.
    if (isExpanded_) {
        return std::nullopt;
    }
    // Readline begins its word behind the open quote, and knows no breaks inside.
    if (openQuote_ != '\0') {
        const std::string_view inserted = word.substr(quotedFrom_);
        // Readline closes the quote, with no blank behind it.
        const bool isDouble = openQuote_ == '"';
        const std::string_view unsayable = isDouble ? unsayableInDouble : unsayableInSingle;
        const bool isSayable = inserted.find_first_of(unsayable) == std::string_view::npos;
        return isSayable ? std::optional<std::string>(inserted) : std::nullopt;
    }
    // Quotes that were closed are replaced as well, so backslashes take their place. Behind "=" the
    // value is still to come.
    return withBackslashes(word.substr(brokenAt_)) + (word.back() == '=' ? "" : " ");
}

}  // namespace zarn_3_3::internal
