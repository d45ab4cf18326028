#include "support/acting_handler.h"

#include "support/stage.h"

namespace zarn_3_3::testing_support {
namespace {

bool isLike(const std::string& pattern, const std::string& event) {
    const bool isOpen = !pattern.empty() && pattern.back() == '*';
    return isOpen ? event.compare(0, pattern.size() - 1, pattern, 0, pattern.size() - 1) == 0
                  : event == pattern;
}

}  // namespace

bool ActingHandler::onOptionParse(const char* option) { return hear("option ", option, nullptr); }

bool ActingHandler::onValueParse(const char* option, const Value& value) {
    return hear("value ", option, &value);
}

bool ActingHandler::onUknownArgument(const char* argument) {
    return hear("unknown ", argument, nullptr);
}

void ActingHandler::plan(long nth, const std::string& event, const Step& step) {
    plans.push_back({nth, event, step});
}

bool ActingHandler::hear(const char* kind, const char* text, const Value* value) {
    const Restored spared(memory.isSpared, true);
    std::string event = std::string(kind) + stage->keep(stage->parser, text);
    std::string shown = event;
    if (value != nullptr) {
        event += std::string("=") + (value->text == nullptr ? "" : value->text);
        shown += "=" + stage->shown(*value);
    }
    if (stage->lent != nullptr) {
        stage->lent->takeBack();
    }
    if (this == &stage->listener) {
        stage->filesNamed += event == "option option-file" ? 1 : 0;
        value != nullptr ? stage->numbers.push_back(value->position) : void();
        return true;
    }
    stage->observer.say(Kind::event, name + " " + shown);
    const Restored refusal(stage->isRefused, false);
    react(event);
    return !stage->isRefused;
}

void ActingHandler::react(const std::string& event) {
    const Restored parser(stage->parser, stage->parser);
    const Restored result(stage->result, stage->result);
    for (Plan& plan : plans) {
        act(plan, event);
    }
}

void ActingHandler::act(Plan& plan, const std::string& event) {
    if (plan.isInProgress || !isLike(plan.event, event)) {
        return;
    }
    ++plan.heard;
    if (plan.nth == 0 || plan.nth == plan.heard) {
        const Restored mark(plan.isInProgress, true);
        stage->act(plan.step);
    }
}

}  // namespace zarn_3_3::testing_support
