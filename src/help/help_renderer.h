// Writes the list of options, section by section.

#ifndef ZARN_HELP_HELP_RENDERER_H
#define ZARN_HELP_HELP_RENDERER_H

#include <string>
#include <vector>

namespace zarn_3_3 {

class OptionDescription;
class SectionList;

namespace internal {

struct HelpText {
    std::string text;
    bool isFailure = false;  // the text then ends in that of the failure
};

// The text for those of `items` that are not positional, in all sections that are visible, those
// without items too. When memory runs out: "Unknown error handled."; throws std::bad_alloc when
// there is none for that either.
HelpText renderOptions(const SectionList& sections,
                       const std::vector<const OptionDescription*>& items,
                       bool hidden);

// Whether items of this section are shown.
bool isSectionVisible(const std::string& key, bool hidden);

}  // namespace internal
}  // namespace zarn_3_3

#endif  // ZARN_HELP_HELP_RENDERER_H
