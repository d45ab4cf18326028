// The handler of scenarios: it tells the stage what it hears, and does what it was told to do then.

#ifndef ZARN_TESTS_SUPPORT_ACTING_HANDLER_H
#define ZARN_TESTS_SUPPORT_ACTING_HANDLER_H

#include <list>
#include <string>

#include "support/scenario.h"
#include "zarn/zarn.h"

namespace zarn_3_3::testing_support {

class Stage;

class ActingHandler final : public EventHandler {
public:
    bool onOptionParse(const char* name) override;
    bool onValueParse(const char* name, const Value& value) override;
    bool onUknownArgument(const char* argument) override;

    // From now on `step` is done inside the `nth` such event, 0: inside each of them. Lines of the
    // console are events too, "log TEXT" and "warning TEXT", although nobody hears them.
    void plan(long nth, const std::string& event, const Step& step);

    void react(const std::string& event);

    Stage* stage = nullptr;
    std::string name;

private:
    struct Plan {
        long nth;
        std::string event;
        Step step;
        long heard = 0;
        bool isInProgress = false;
    };

    bool hear(const char* kind, const char* text, const Value* value);
    void act(Plan& plan, const std::string& event);

    std::list<Plan> plans;  // more may come while one is in progress
};

}  // namespace zarn_3_3::testing_support

#endif  // ZARN_TESTS_SUPPORT_ACTING_HANDLER_H
