#include "zarn/event_handler.h"

namespace zarn_3_3 {

bool EventHandler::onOptionParse(const char* /*name*/) { return true; }

bool EventHandler::onValueParse(const char* /*name*/, const Value& /*value*/) { return true; }

bool EventHandler::onUknownArgument(const char* /*argument*/) { return true; }

}  // namespace zarn_3_3
