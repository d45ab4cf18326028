#include "modern/writing.h"

#include <algorithm>
#include <cstddef>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "modern/behind_parse.h"
#include "modern/places.h"
#include "parser/guarded.h"
#include "text/heap_sort.h"

namespace zarn_3_3::internal {
namespace {

// Values that are made, each for the variable of an item.
class Writing {
public:
    explicit Writing(const std::vector<std::unique_ptr<ItemRecord>>& items)
        : places_(unitsOf(items)) {
        made_.reserve(items.size());
    }
    Writing(const Writing&) = delete;
    Writing& operator=(const Writing&) = delete;
    ~Writing() {
        // Backwards, since some may have gone into the same variable.
        for (auto each = made_.rbegin(); each != made_.rend(); ++each) {
            if (isUndone_) {
                exchange(*each);
            }
            each->item->target->destroy(each->value);
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
        void* const place = places_.take(*item.target);
        item.target->make(place, {all_.data(), found.count, found.last, constant});
        made_.push_back({
            &item, place, {found.origin, found.last.position}
        });
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

    static std::size_t unitsOf(const std::vector<std::unique_ptr<ItemRecord>>& items) {
        std::size_t units = 0;
        for (const auto& item : items) {
            units += item->target == nullptr ? 0 : Places::unitsOf(*item->target);
        }
        return units;
    }

    static void exchange(const Made& made) noexcept {
        made.item->target->exchange(made.item->variable, made.value);
    }

    Places places_;
    std::vector<Made> made_;
    std::vector<Value> all_;
    bool mayShare_ = false;
    bool isUndone_ = false;
};

// What the checks of the whole line say: a code, and in `reason` why.
int checkLine(const StoredOutcome& outcome, std::string& reason) {
    const Check* check = outcome.vocabulary().lineChecks();
    if (check == nullptr || isAloneGiven(outcome)) {
        return resultOk;
    }
    // Asked with the variables written: that is what its author wants to look at.
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
    Writing writing(items);
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
