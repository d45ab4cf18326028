// What is worked out of a failure when somebody asks.

#ifndef ZARN_DIAGNOSTICS_SUGGESTIONS_H
#define ZARN_DIAGNOSTICS_SUGGESTIONS_H

#include <string>
#include <vector>

namespace zarn_3_3 {

class RegisteredOptionStorage;

namespace internal {

struct Failure;

// What there is to choose from.
std::vector<std::string> candidatesOf(const Failure& failure,
                                      const RegisteredOptionStorage& registry);

// What was probably meant, to be put in the place of the argument.
std::vector<std::string> suggestionsFor(const Failure& failure,
                                        const RegisteredOptionStorage& registry);

}  // namespace internal
}  // namespace zarn_3_3

#endif  // ZARN_DIAGNOSTICS_SUGGESTIONS_H
