#include "modern/writing.h"

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "modern/behind_parse.h"
#include "parser/guarded.h"
#include "text/heap_sort.h"

namespace zarn_3_3::internal {
namespace {

// Values that are made, each for the variable of an item.
class Writing {
public:
    explicit Writing(std::size_t most) { made_.reserve(most); }
    Writing(const Writing&) = delete;
    Writing& operator=(const Writing&) = delete;
    ~Writing() {
        // Backwards, since some may have gone into the same variable.
        for (auto each = made_.rbegin(); each != made_.rend(); ++each) {
            if (isUndone_) {
                exchange(*each);
            }
            each->item->target->release(each->value);
        }
    }

    void make(const ItemRecord& item, const StoredOutcome& outcome) {
        all_.clear();
        const Found found = outcome.find(item, item.takesMany() ? &all_ : nullptr);
        // A default that was taken from the variable stands there already, or what the tool has put
        // there since.
        if (found.count == 0 || (found.origin == Origin::byDefault && item.showsTarget)) {
            return;
        }
        const void* const constant = item.extras().constant.value;
        mayShare_ = mayShare_ || constant != nullptr;
        // The place in the list first: a value without one would leak where there is no memory for
        // it.
        made_.push_back({
            &item, nullptr, {found.origin, found.last.position}
        });
        made_.back().value = item.target->make({all_.data(), found.count, found.last, constant});
    }

    // Undone at the end, unless it is kept.
    void write() {
        if (mayShare_) {  // what counts most goes last
            heapSort(made_, [](const Made& a, const Made& b) { return a.rank < b.rank; });
        }
        // An exchange never throws, so all variables change or none; the old values wait in made_.
        isUndone_ = true;
        std::for_each(made_.begin(), made_.end(), &exchange);
    }

    void keep() { isUndone_ = false; }

private:
    struct Made {
        const ItemRecord* item;
        void* value;
        std::pair<Origin, int> rank;
    };

    static void exchange(const Made& made) noexcept {
        made.item->target->exchange(made.item->variable, made.value);
    }

    std::vector<Made> made_;
    std::vector<Value> all_;
    bool mayShare_ = false;
    bool isUndone_ = false;
};

// What the checks of the whole line say: a code, and in `reason` why.
int checkLine(const StoredOutcome& outcome, std::string& reason) {
    // Asked with the variables written: that is what its author wants to look at.
    const Check* check = isAloneGiven(outcome) ? nullptr : outcome.vocabulary().lineChecks();
    while (check != nullptr && check->holds(Value(), reason)) {
        check = check->next;
    }
    return check == nullptr ? resultOk : resultRuleBroken;
}

}  // namespace

void writeVariables(StoredOutcome& outcome) {
    if (outcome.code != resultOk) {
        return;
    }
    const auto& items = outcome.vocabulary().items();
    Writing writing(items.size());
    for (const auto& item : items) {
        if (item->target != nullptr) {
            writing.make(*item, outcome);
        }
    }
    // Everything that can throw lies behind us, but for the author's own checks.
    writing.write();
    std::string reason;
    // As what the check of a value throws: users can bring it about.
    const int code = guarded(reason, [&] { return checkLine(outcome, reason); });
    if (code == resultOk) {
        writing.keep();
        return;
    }
    BasicParser& plain = outcome.vocabulary().plain();
    plain.failure().make(lineRefused);
    outcome.end(plain.ended(code), std::move(reason));
}

}  // namespace zarn_3_3::internal
