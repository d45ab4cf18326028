// The help texts that a tool can ask for.

#ifndef ZARN_HELP_HELP_TOPICS_H
#define ZARN_HELP_HELP_TOPICS_H

#include <string>
#include <vector>

#include "help/help_renderer.h"

namespace zarn_3_3::internal {

// Every text is kept by the garbage. Throws std::bad_alloc.
class HelpTopics {
public:
    HelpTopics(const RegisteredOptionStorage& theRegistry, Garbage& keeper, std::string& errorText)
        : registry(theRegistry), garbage(keeper), renderer(theRegistry, keeper, errorText) {}

    // The actions; for a vocabulary without actions its options.
    const char* vocabulary(bool hidden) const;

    // One item; null asks for the vocabulary.
    const char* topic(const char* name, bool hidden) const;

    // The options of an action; an empty text when there are none.
    const char* modifiersOf(const char* action, bool hidden) const;

    // The options of no action.
    const char* globalModifiers(bool hidden) const;

private:
    const char* unknownTopic(const std::string& name, bool hidden) const;
    std::vector<const OptionDescription*> getGlobalActions() const;
    std::vector<const OptionDescription*> getGlobalModifiers() const;

    const RegisteredOptionStorage& registry;
    Garbage& garbage;
    HelpRenderer renderer;
};

}  // namespace zarn_3_3::internal

#endif  // ZARN_HELP_HELP_TOPICS_H
