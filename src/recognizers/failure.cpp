#include "recognizers/failure.h"

#include <exception>
#include <functional>
#include <utility>

namespace zarn_3_3::internal {

std::size_t placeIn(std::string_view whole, std::string_view part) {
    // Texts of different objects have no other order that is defined.
    const std::less<> isBefore;
    const bool isInside = !isBefore(part.data(), whole.data()) &&
                          !isBefore(whole.data() + whole.size(), part.data() + part.size());
    return isInside ? static_cast<std::size_t>(part.data() - whole.data()) : elsewhere;
}

void FailureNote::make(DiagnosticKind kind,
                       const Place& place,
                       std::string_view argument,
                       std::string_view option,
                       std::string_view value) noexcept {
    // First of all: without memory for this one, the one before must not stand for it.
    failure_.reset();
    try {
        auto failure = std::make_unique<Failure>();
        failure->kind = kind;
        failure->index = place.index;
        failure->line = place.line;
        failure->file = place.file;
        failure->argument = argument;
        failure->option = option;
        failure->value = value;
        failure->valueAt = placeIn(argument, value);
        failure_ = std::move(failure);
    } catch (const std::exception&) {
        // The code and the text of the failure say enough.
    }
}

void FailureNote::drop() noexcept { failure_.reset(); }

}  // namespace zarn_3_3::internal
