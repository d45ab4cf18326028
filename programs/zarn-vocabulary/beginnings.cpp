#include "beginnings.h"

namespace vocabulary {
namespace {

// Beginnings of one candidate that share their fate, longest first.
struct Range {
    Fate fate;
    std::string longest;
    std::string shortest;
};

// Nobody types a part of a character.
bool endsInsideCharacter(const std::string& candidate, std::size_t size) {
    return size < candidate.size() && (static_cast<unsigned char>(candidate[size]) & 0xc0U) == 0x80;
}

// What else the longest of lost beginnings begins, all of them begin.
bool goesOn(const Range& range, const Fate& fate) {
    return range.fate.kind == fate.kind && (fate.kind == Fate::lost || range.fate.to == fate.to);
}

// The size of the shortest beginning that was enough; more than `longest` when none was.
std::size_t shortestMeant(const std::string& candidate, std::size_t longest, Lookup& lookup) {
    std::size_t tooShort = 0;
    std::size_t enough = longest + 1;
    while (enough - tooShort > 1) {
        const std::size_t middle = tooShort + (enough - tooShort) / 2;
        (lookup.wasMeant(candidate.substr(0, middle)) ? enough : tooShort) = middle;
    }
    return enough;
}

// Where the candidate alone begins so, it alone begins with more of itself.
bool isKept(const std::string& beginning, Lookup& lookup) {
    return !lookup.isWhole(beginning) && lookup.fate(beginning).kind == Fate::kept;
}

std::vector<Range> rangesOf(const std::string& candidate, std::size_t longest, Lookup& lookup) {
    const std::size_t shortest = shortestMeant(candidate, longest, lookup);
    if (shortest > longest ||
        (lookup.isWhole(candidate) && isKept(candidate.substr(0, shortest), lookup))) {
        return {};
    }
    std::vector<Range> ranges;
    for (std::size_t size = longest; size >= shortest; --size) {
        if (endsInsideCharacter(candidate, size)) {
            continue;
        }
        const std::string beginning = candidate.substr(0, size);
        const Fate fate = lookup.fate(beginning);
        if (ranges.empty() || !goesOn(ranges.back(), fate)) {
            ranges.push_back({fate, beginning, beginning});
        }
        ranges.back().shortest = beginning;
    }
    return ranges;
}

std::string told(const Range& range, const Lookup& lookup) {
    std::string text = quoted(lookup.typed(range.shortest));
    if (range.shortest != range.longest) {
        text += " (up to " + quoted(lookup.typed(range.longest)) + ")";
    }
    if (range.fate.kind == Fate::redirected) {
        return text + " now means " + range.fate.to;
    }
    return text +
           (range.fate.to.empty() ? " is not known any more" : " now also begins " + range.fate.to);
}

}  // namespace

void compareBeginnings(const std::string& candidate,
                       std::size_t longest,
                       Lookup& lookup,
                       bool isGone,
                       const std::string& item,
                       Changes& changes) {
    for (const Range& range : rangesOf(candidate, longest, lookup)) {
        if (range.fate.kind == Fate::redirected) {
            changes.breaking("abbreviation-redirected", item, told(range, lookup));
        } else if (range.fate.kind == Fate::lost && !isGone) {
            changes.breaking("abbreviation-lost", item, told(range, lookup));
        }
    }
}

}  // namespace vocabulary
