#include "support/acting_handler.h"

#include <utility>

#include "support/stage.h"

namespace zarn_3_3::testing_support {
namespace {

bool isLike(const std::string& pattern, const std::string& event) {
    const bool isOpen = !pattern.empty() && pattern.back() == '*';
    return isOpen ? event.compare(0, pattern.size() - 1, pattern, 0, pattern.size() - 1) == 0
                  : event == pattern;
}

// While it lives an event may be refused, and another parser or result be in use.
class Aside {
public:
    explicit Aside(Stage& changed)
        : stage(changed),
          parser(stage.parser),
          result(stage.result),
          isRefused(std::exchange(stage.isRefused, false)) {}
    Aside(const Aside&) = delete;
    Aside& operator=(const Aside&) = delete;
    ~Aside() {
        stage.parser = parser;
        stage.result = result;
        stage.isRefused = isRefused;
    }

private:
    Stage& stage;
    IParser* parser;
    IParseResult* result;
    bool isRefused;
};

// Sets a mark while it lives.
class Marked {
public:
    explicit Marked(bool& marked) : mark(marked) { mark = true; }
    Marked(const Marked&) = delete;
    Marked& operator=(const Marked&) = delete;
    ~Marked() { mark = false; }

private:
    bool& mark;
};

}  // namespace

bool ActingHandler::onOptionParse(const char* option) { return hear("option ", option); }

bool ActingHandler::onValueParse(const char* option, const Value& value) {
    const Crossing outward(stage->border, false);
    stage->keep(stage->parser, option);
    const std::string text = value.text == nullptr ? "" : value.text;
    const std::string head = std::string("value ") + option + "=";
    return hear(head + text, head + stage->shown(value));
}

bool ActingHandler::onUknownArgument(const char* argument) { return hear("unknown ", argument); }

void ActingHandler::plan(long nth, const std::string& event, const Step& step) {
    plans.push_back({nth, event, step});
}

bool ActingHandler::hear(const char* kind, const char* kept) {
    const Crossing outward(stage->border, false);
    const std::string event = std::string(kind) + stage->keep(stage->parser, kept);
    return hear(event, event);
}

bool ActingHandler::hear(const std::string& event, const std::string& shown) {
    if (stage->lent != nullptr) {
        stage->lent->takeBack();
    }
    stage->observer.say(Kind::event, name + " " + shown);
    const Aside aside(*stage);
    for (Plan& plan : plans) {
        act(plan, event);
    }
    return !stage->isRefused;
}

void ActingHandler::act(Plan& plan, const std::string& event) {
    if (plan.isInProgress || !isLike(plan.event, event)) {
        return;
    }
    ++plan.heard;
    if (plan.nth == 0 || plan.nth == plan.heard) {
        const Marked mark(plan.isInProgress);
        stage->act(plan.step);
    }
}

}  // namespace zarn_3_3::testing_support
