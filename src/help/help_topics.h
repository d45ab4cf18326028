// The help texts that a tool can ask for.

#ifndef ZARN_HELP_HELP_TOPICS_H
#define ZARN_HELP_HELP_TOPICS_H

#include <string>
#include <vector>

#include "help/help_renderer.h"

namespace zarn_3_3 {

class RegisteredOptionStorage;

namespace internal {

// Each operation throws std::bad_alloc.
class HelpTopics {
public:
    explicit HelpTopics(const RegisteredOptionStorage& registry) : registry_(registry) {}

    // The actions; for a vocabulary without actions its options.
    HelpText vocabulary(bool hidden) const;

    // One item; null asks for the vocabulary.
    HelpText topic(const char* name, bool hidden) const;

    // The options of an action; an empty text when there are none.
    HelpText modifiersOf(const char* action, bool hidden) const;

    // The options of no action.
    HelpText globalModifiers(bool hidden) const;

private:
    HelpText render(const std::vector<const OptionDescription*>& items, bool hidden) const;
    HelpText unknownTopic(const std::string& name, bool hidden) const;
    std::vector<const OptionDescription*> getGlobalActions() const;
    std::vector<const OptionDescription*> getGlobalModifiers() const;

    const RegisteredOptionStorage& registry_;
};

}  // namespace internal
}  // namespace zarn_3_3

#endif  // ZARN_HELP_HELP_TOPICS_H
