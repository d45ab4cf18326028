// What becomes of a declaration that is refused.

#include <algorithm>
#include <exception>
#include <memory>
#include <utility>

#include "options/registered_option_storage.h"

namespace zarn_3_3 {

// What clients chain onto a refused declaration must not pile up. Its reason is lost when there is
// no memory for it.
IOption& RegisteredOptionStorage::refused(RefusalReason reason,
                                          std::string_view names,
                                          std::string_view name) noexcept {
    try {
        note({reason, std::string(names), std::string(name), options.size()});
    } catch (const std::exception&) {
    }
    sink = OptionDescription();
    sink.result = resultFailure;
    return sink;
}

// Nor must those that a client makes again and again.
void RegisteredOptionStorage::note(Refusal&& refusal) {
    constexpr std::size_t mostRefusals = 100;
    if (refusals_ == nullptr) {
        refusals_ = std::make_unique<std::vector<Refusal>>();
    }
    const bool isNoted =
        std::any_of(refusals_->begin(), refusals_->end(), [&](const Refusal& noted) {
            return noted.names == refusal.names && noted.reason == refusal.reason;
        });
    if (!isNoted && refusals_->size() < mostRefusals) {
        refusals_->push_back(std::move(refusal));
    }
}

const std::vector<Refusal>& RegisteredOptionStorage::refusals() const {
    static const std::vector<Refusal> none;
    return refusals_ == nullptr ? none : *refusals_;
}

}  // namespace zarn_3_3
