#include "modern/writing.h"

#include <vector>

namespace zarn_3_3::internal {
namespace {

// Values that are made, each for the variable of an item.
class Writing {
public:
    Writing() = default;
    Writing(const Writing&) = delete;
    Writing& operator=(const Writing&) = delete;
    ~Writing() {
        for (const Made& each : made_) {
            each.item->target->release(each.value);
        }
    }

    void make(const ItemRecord& item, const StoredOutcome& outcome) {
        all_.clear();
        const Found found = outcome.find(item, item.takesMany() ? &all_ : nullptr);
        if (found.count != 0 && !(found.origin == Origin::byDefault && item.showsTarget)) {
            made_.push_back({&item, nullptr});
            made_.back().value = item.target->make({all_.data(), found.count, found.last});
        }
    }

    void exchange() noexcept {
        for (const Made& each : made_) {
            each.item->target->exchange(each.item->variable, each.value);
        }
    }

private:
    struct Made {
        const ItemRecord* item;
        void* value;
    };

    std::vector<Made> made_;
    std::vector<Value> all_;
};

}  // namespace

void writeVariables(const StoredOutcome& outcome) {
    Writing writing;
    for (const auto& item : outcome.vocabulary().items()) {
        if (item->target != nullptr) {
            writing.make(*item, outcome);
        }
    }
    writing.exchange();
}

}  // namespace zarn_3_3::internal
