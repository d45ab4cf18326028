// Refuses values that the parser cannot know to be wrong.

#ifndef ZARN_CHECKSUMS_VALUE_CHECKS_H
#define ZARN_CHECKSUMS_VALUE_CHECKS_H

#include <zarn/typed.h>

#include <string>

namespace checksums {

class ValueChecks final : public zarn::EventHandler {
public:
    bool onOptionParse(const char* name) override;
    bool onValueParse(const char* name, const zarn::Value& value) override;

    // Why the value was refused, which the parser's message does not say.
    const std::string& reason() const { return refusal; }

    // Whether it was refused for a file that is not there.
    bool isFileMissing() const { return fileMissing; }

private:
    bool isThere(const std::string& file);
    bool isInRange(unsigned number, unsigned greatest);

    bool namesAreTopics = false;
    bool fileMissing = false;
    std::string refusal;
};

}  // namespace checksums

#endif  // ZARN_CHECKSUMS_VALUE_CHECKS_H
