#include "support/stage.h"

#include <algorithm>
#include <climits>
#include <iostream>

#include "log/zarn_log.h"
#include "recognizers/argument_parser.h"
#include "support/assertion_double.h"
#include "support/file_calls_double.h"

namespace zarn_3_3::testing_support {
namespace {

Deeds allDeeds() {
    Deeds all = declaringDeeds();
    all.merge(parsingDeeds());
    all.merge(readingDeeds());
    return all;
}

bool isLike(const std::string& pattern, const std::string& event) {
    const bool isOpen = !pattern.empty() && pattern.back() == '*';
    return isOpen ? event.compare(0, pattern.size() - 1, pattern, 0, pattern.size() - 1) == 0
                  : event == pattern;
}

}  // namespace

const char* LentTexts::lend(const std::string& word) {
    if (pointerTo(word) == nullptr) {
        return nullptr;
    }
    auto& [block, size] = blocks.emplace_back(new char[word.size() + 1], word.size() + 1);
    std::copy_n(word.c_str(), size, block.get());
    return block.get();
}

void LentTexts::takeBack() {
    for (auto& [block, size] : blocks) {
        std::fill_n(block.get(), size, '?');
    }
    blocks.clear();
    argv = {};
}

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

Stage::Stage(Console console, Way theWay)
    : observer(console), way(theWay), numberBefore(IArgumentParser::m_idx), base(numberBefore - 1) {
    internal::zarnLogEnabled = false;
    takeAssertions();
    observer.react = [this](const std::string& event) {
        if (lent != nullptr && startsWith(event, "log ")) {
            lent->takeBack();
        }
        for (ActingHandler& handler : handlers) {
            handler.react(event);
        }
    };
    listener.stage = this;
    for (std::size_t i = 0; i < handlers.size(); ++i) {
        handlers[i].stage = this;
        handlers[i].name = std::to_string(i);
    }
}

Stage::~Stage() {
    while (!results.empty()) {
        destroy(results, results.begin()->first, result);
    }
    while (!parsers.empty()) {
        destroy(parsers, parsers.begin()->first, parser);
    }
    fileCalls.files.clear();
    memory.left = 0;
    if (hasSigns) {
        std::cout << std::noshowpos;
    }
    IArgumentParser::m_idx = numberBefore;
}

void Stage::perform(const Step& step) {
    observer.line = step.line;
    try {
        act(step);
    } catch (const BadStep& bad) {
        throw BadStep(std::to_string(step.line) + ": " + bad.what());
    } catch (const std::exception& thrown) {
        tell(std::string("threw ") + (thrown.what() == nullptr ? "nothing" : thrown.what()));
    } catch (const ForeignException&) {
        tell("threw a foreign exception");
    }
    observer.finishStep();
    std::string assertions = takeAssertions();
    if (!assertions.empty()) {
        assertions.pop_back();
        observer.say(Kind::assertion, "assertion: " + assertions);
    }
    checkKept();
}

void Stage::act(const Step& step) {
    static const Deeds deeds = allDeeds();
    const auto found = deeds.find(step.verb);
    if (found == deeds.end()) {
        throw BadStep("unknown step: " + step.verb);
    }
    const Deed& deed = found->second;
    if (deed.needs == Needs::parser && parser == nullptr) {
        tell("no parser");
    } else if (deed.needs == Needs::result && result == nullptr) {
        tell("no result");
    } else {
        deed.act(*this, step);
    }
}

const char* Stage::keep(const void* owner, const char* text) {
    kept.push_back({owner, text, text});
    return text;
}

void Stage::checkKept() {
    for (const KeptText& one : kept) {
        if (one.pointer != one.text) {
            tell("the text '" + one.text + "' became '" + one.pointer + "'");
        }
    }
}

void Stage::forget(const void* owner) {
    const auto isOwned = [owner](const KeptText& one) { return one.owner == owner; };
    kept.erase(std::remove_if(kept.begin(), kept.end(), isOwned), kept.end());
    last = {};
}

void Stage::beginNumbers(int first) {
    IArgumentParser::m_idx = first;
    base = first - 1;
}

int Stage::number(const std::string& place) const {
    const long relative = place == "end" ? INT_MAX : numberOf(place);
    return static_cast<int>(std::min<long>(INT_MAX, base + relative));
}

std::string Stage::place(int number) const {
    return number == INT_MAX ? "end" : std::to_string(number - base);
}

std::string Stage::shown(const Value& value) const {
    const std::string text = value.text == nullptr ? "" : value.text;
    const std::string content = contentOf(value.value);
    const std::string converted =
        content == text ? "" : "(" + kindOf(value.value) + ":" + content + ")";
    return text + converted + "@" + place(value.position);
}

const std::string& wordOf(const Step& step, std::size_t index) {
    if (index >= step.words.size()) {
        throw BadStep("a word is missing");
    }
    return step.words[index];
}

std::string joined(const Words& words, std::size_t begin, std::size_t end, char separator) {
    std::string text;
    for (std::size_t i = begin; i < end; ++i) {
        text += (i == begin ? "" : std::string(1, separator)) + words[i];
    }
    return text;
}

Answers play(const Scenario& scenario) {
    Stage stage;
    for (const Step& step : scenario.steps) {
        stage.perform(step);
    }
    return stage.observer.answers;
}

}  // namespace zarn_3_3::testing_support
