// A handler that records what it hears, and behaves as an input says.

#ifndef ZARN_FUZZ_LISTENER_H
#define ZARN_FUZZ_LISTENER_H

#include <string>

#include "zarn/zarn.h"

namespace fuzzing {

enum class Deed { none, refuse, throwStandard, throwOther, takeUnknown };

// Does its deed at every event that comes behind so many others.
class Listener final : public zarn_3_3::EventHandler {
public:
    Listener(Deed chosenDeed, unsigned eventsBefore) : deed(chosenDeed), countdown(eventsBefore) {}

    bool onOptionParse(const char* name) override;
    bool onValueParse(const char* name, const zarn_3_3::Value& value) override;
    bool onUknownArgument(const char* argument) override;

    std::string events;
    bool hasRefused = false;
    bool hasThrown = false;

private:
    bool isTimeFor(Deed wanted);
    void throwIfTime();

    Deed deed;
    unsigned countdown;
};

// Checks the code and the error text that go with each other.
void checkOutcome(int code, zarn_3_3::IParser& parser, const Listener& listener);

}  // namespace fuzzing

#endif  // ZARN_FUZZ_LISTENER_H
