#include "zarn/event_handler.h"

namespace zarn_3_3 {

// Here and not in the header, so that the table of the class is in the library, and not once more
// in each tool. True lets a parse go on as if nobody heard it.
bool EventHandler::onOptionParse(const char* /*name*/) { return true; }

bool EventHandler::onValueParse(const char* /*name*/, const Value& /*value*/) { return true; }

bool EventHandler::onUknownArgument(const char* /*argument*/) { return true; }

}  // namespace zarn_3_3
