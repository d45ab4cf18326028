// How a parse has failed, noted for who asks.

#ifndef ZARN_RECOGNIZERS_FAILURE_H
#define ZARN_RECOGNIZERS_FAILURE_H

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>

#include "recognizers/arguments.h"
#include "zarn/tooling.h"

namespace zarn_3_3::internal {

constexpr std::size_t elsewhere = static_cast<std::size_t>(-1);

// Where `part`, when it is a view into `whole`, begins there; or elsewhere.
std::size_t placeIn(std::string_view whole, std::string_view part);

// What cannot be known any more when the parse has ended. See Diagnostic.
struct Failure {
    DiagnosticKind kind = noFailure;
    int code = 0;
    int index = 0;
    std::size_t line = 0;
    std::string file;
    std::string argument;
    std::string option;
    std::string value;
    std::size_t valueAt = elsewhere;  // in the argument
    std::string candidates;           // one a line, when they are not worked out of the rest
    bool isShortBehindDash = false;   // one dash is in front of letters alone
    bool isGluedBehindDash = false;   // and what stands behind one may be its value
};

// Holds the last failure. Made where something fails, and nowhere else: a parse that goes well asks
// twice whether there is one, and a parser that never fails pays for a pointer.
class FailureNote {
public:
    // Takes the place of the one before. Without memory there is none then.
    [[gnu::cold, gnu::noinline]] void make(DiagnosticKind kind,
                                           const Place& place = {},
                                           std::string_view argument = {},
                                           std::string_view option = {},
                                           std::string_view value = {}) noexcept;

    void clear() noexcept {
        if (failure_ != nullptr) {
            drop();
        }
    }

    // Null when there is none.
    Failure* get() const { return failure_.get(); }

private:
    [[gnu::cold, gnu::noinline]] void drop() noexcept;

    std::unique_ptr<Failure> failure_;
};

}  // namespace zarn_3_3::internal

#endif  // ZARN_RECOGNIZERS_FAILURE_H
