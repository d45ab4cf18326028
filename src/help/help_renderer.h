// Writes the list of options, section by section.

#ifndef ZARN_HELP_HELP_RENDERER_H
#define ZARN_HELP_HELP_RENDERER_H

#include <string>
#include <vector>

namespace zarn_3_3 {

class Garbage;
class OptionDescription;
class RegisteredOptionStorage;

namespace internal {

class HelpRenderer {
public:
    HelpRenderer(const RegisteredOptionStorage& theRegistry,
                 Garbage& keeper,
                 std::string& errorText)
        : registry(theRegistry), garbage(keeper), lastError(errorText) {}

    // The text for those of `items` that are not positional, in all sections that are visible,
    // those without items too; kept by the garbage. When memory runs out: "Unknown error handled.",
    // which is the last error then; throws std::bad_alloc when not even that can be kept.
    const char* render(const std::vector<const OptionDescription*>& items, bool hidden) const;

    // Whether items of this section are shown.
    static bool isVisible(const std::string& sectionKey, bool hidden);

private:
    std::string textFor(std::vector<const OptionDescription*> items, bool hidden) const;

    const RegisteredOptionStorage& registry;
    Garbage& garbage;
    std::string& lastError;
};

}  // namespace internal
}  // namespace zarn_3_3

#endif  // ZARN_HELP_HELP_RENDERER_H
