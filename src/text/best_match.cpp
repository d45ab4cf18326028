#include "text/best_match.h"

#include <string_view>
#include <unordered_set>

namespace plinth2 {
namespace {

using Candidates = generic_iterator_t<std::string>;

bool beginsWith(const std::string& candidate, const std::string& text) {
    return candidate.compare(0, text.size(), text) == 0;
}

std::vector<std::string> distinctBeginnings(Candidates candidates, const std::string& text) {
    std::vector<std::string> distinct;
    std::unordered_set<std::string_view> seen;
    for (; !candidates.atEnd(); candidates.advance()) {
        const std::string& candidate = candidates.current();
        if (beginsWith(candidate, text) && seen.insert(candidate).second) {
            distinct.push_back(candidate);
        }
    }
    return distinct;
}

}  // namespace

int find_best_match(Candidates candidates, const std::string& text, Candidates& matches) {
    Candidates first;
    bool isTie = false;
    for (Candidates rest = candidates; !rest.atEnd(); rest.advance()) {
        const std::string& candidate = rest.current();
        if (candidate == text) {
            matches = rest.currentAlone();
            return 1;
        }
        if (!beginsWith(candidate, text)) {
            continue;
        }
        if (first.atEnd()) {
            first = rest.currentAlone();
        }
        isTie = isTie || candidate != first.current();
    }

    if (isTie) {
        std::vector<std::string> tied = distinctBeginnings(candidates, text);
        const int count = static_cast<int>(tied.size());
        matches = Candidates(std::move(tied));
        return count;
    }
    matches = first;
    return first.atEnd() ? 0 : 1;
}

}  // namespace plinth2
