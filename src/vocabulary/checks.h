// The checks of a vocabulary: mistakes that a declaration passes over in silence.

#ifndef ZARN_VOCABULARY_CHECKS_H
#define ZARN_VOCABULARY_CHECKS_H

#include <cstddef>
#include <string_view>

#include "vocabulary/findings.h"

namespace zarn_3_3 {

class BasicParser;
class OptionDescription;
class RegisteredOptionStorage;

namespace internal {

// Of one item.
void checkNames(std::size_t number, const RegisteredOptionStorage& registry, Findings& findings);
void checkValues(const OptionDescription& item, Findings& findings);
void checkActions(const OptionDescription& item,
                  const RegisteredOptionStorage& registry,
                  Findings& findings);
void checkTexts(std::size_t number, const RegisteredOptionStorage& registry, Findings& findings);

// The action with this name, which may be a synonym; null when there is none.
const OptionDescription* findAction(std::string_view name, const RegisteredOptionStorage& registry);

// All of it, in the order of declaration, groups of actions last.
void checkVocabulary(const BasicParser& parser, Findings& findings);

}  // namespace internal
}  // namespace zarn_3_3

#endif  // ZARN_VOCABULARY_CHECKS_H
