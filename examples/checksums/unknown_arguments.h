// Collects what nobody understands, so that the user hears of all of it at once.

#ifndef ZARN_CHECKSUMS_UNKNOWN_ARGUMENTS_H
#define ZARN_CHECKSUMS_UNKNOWN_ARGUMENTS_H

#include <zarn/zarn.h>

#include <string>
#include <vector>

namespace checksums {

class UnknownArguments final : public zarn::EventHandler {
public:
    // False: taken care of, the parse goes on.
    bool onUknownArgument(const char* argument) override {
        arguments.emplace_back(argument);
        return false;
    }

    const std::vector<std::string>& all() const { return arguments; }

private:
    std::vector<std::string> arguments;
};

}  // namespace checksums

#endif  // ZARN_CHECKSUMS_UNKNOWN_ARGUMENTS_H
