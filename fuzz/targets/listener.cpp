#include "listener.h"

#include <stdexcept>

#include "check.h"
#include "observation.h"

namespace fuzzing {

using namespace zarn_3_3;

bool Listener::isTimeFor(Deed wanted) { return deed == wanted && countdown == 0; }

void Listener::throwIfTime() {
    hasThrown = hasThrown || isTimeFor(Deed::throwStandard);
    if (isTimeFor(Deed::throwStandard)) {
        throw std::runtime_error("thrown by a handler");
    }
    if (isTimeFor(Deed::throwOther)) {
        throw 42;
    }
    countdown -= countdown > 0 ? 1 : 0;
}

bool Listener::onOptionParse(const char* name) {
    events += std::string("option ") + name + "\n";
    throwIfTime();
    return true;
}

bool Listener::onValueParse(const char* name, const Value& value) {
    events += std::string("value ") + name + " " + show(value) + "\n";
    const bool isRefused = isTimeFor(Deed::refuse);
    hasRefused = hasRefused || isRefused;
    throwIfTime();
    return !isRefused;
}

bool Listener::onUknownArgument(const char* argument) {
    events += std::string("unknown ") + argument + "\n";
    const bool isTaken = isTimeFor(Deed::takeUnknown);
    throwIfTime();
    return !isTaken;
}

void checkOutcome(int code, IParser& parser, const Listener& listener) {
    switch (code) {
        case resultOk:
            return;
        case resultVetoed:
            require(listener.hasRefused, "vetoed only by a handler");
            break;
        case resultRuleBroken:
        case resultException:
        case resultOptionFileUnreadable:
            break;
        default:
            require(false, "the code is a known one");
    }
    require(*parser.getErrorDesc() != '\0', "a failure has a text");
}

}  // namespace fuzzing
