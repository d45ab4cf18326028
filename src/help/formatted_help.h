// Help in the width of a terminal, as people like to read it.

#ifndef ZARN_HELP_FORMATTED_HELP_H
#define ZARN_HELP_FORMATTED_HELP_H

#include <cstddef>
#include <string>
#include <string_view>

#include "options/registered_option_storage.h"

namespace zarn_3_3::internal {

struct HelpLook {
    std::size_t width;  // in columns
    bool isEmphasized;  // bold names, underlined titles
    bool showsHidden;   // in a section of their own
    std::string_view tool;
    std::string_view summary;
    bool takesTerminator;  // whether positional arguments may stand behind "--"
};

// The usage, the summary, and all items, section by section in the order of declaration.
std::string formattedHelp(const RegisteredOptionStorage& registry, const HelpLook& look);

// Of an action its usage and what may be given with it, of anything else the entry alone. The item
// is shown even if it is hidden.
std::string formattedHelpOf(const RegisteredOptionStorage& registry,
                            const HelpLook& look,
                            std::size_t item);

}  // namespace zarn_3_3::internal

#endif  // ZARN_HELP_FORMATTED_HELP_H
