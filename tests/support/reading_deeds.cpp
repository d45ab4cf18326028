// The deeds of scenarios that read results and help.

#include <climits>

#include "support/stage.h"

namespace zarn_3_3::testing_support {
namespace {

bool isEmpty(const Value& value) {
    return value.text == nullptr && value.position == INT_MAX && value.value.type() == vtNull;
}

// As it was found, with its kind.
void tellValue(Stage& stage, const Value& value) {
    const bool isFound = value.status == statusFound;
    const char* const text = isFound ? value.text : nullptr;
    if (text != nullptr) {
        stage.keep(stage.result, text);
    }
    const bool isWhole = value.as<const char*>() == text && (isFound || isEmpty(value));
    stage.tell(!isWhole                         ? "fields that do not go together"
               : isFound                        ? stage.shown(value) + " " + kindOf(value.value)
               : value.status == statusNotFound ? "none"
                                                : "status " + std::to_string(value.status));
}

// The values of a walk that begins with `value`, and how it ends if that is unusual. Values without
// a text are occurrences.
std::string walked(Stage& stage, Value value, const char* separator, bool showsOccurrences) {
    std::string values;
    for (; value.status == statusFound;
         value = stage.call(&IParseResult::next, stage.result, nullptr)) {
        if (value.text != nullptr || showsOccurrences) {
            values += (values.empty() ? "" : separator) + stage.shown(value);
        }
        if (value.text != nullptr) {
            stage.keep(stage.result, value.text);
        }
    }
    return values +
           (value.status == statusNotFound ? "" : " status " + std::to_string(value.status));
}

void askRange(Stage& stage, const Step& step) {
    const auto ask = [&](auto query) {
        const Words& words = step.words;
        return stage.call(query,
                          stage.result,
                          pointerTo(wordOf(step, 0)),
                          words.size() > 1 ? stage.number(words[1]) : 0,
                          words.size() > 2 ? stage.number(words[2]) : INT_MAX);
    };
    if (step.verb == "present") {
        stage.tell(ask(&IParseResult::present) ? "yes" : "no");
    } else if (step.verb == "walk") {
        const std::string values = walked(stage, ask(&IParseResult::get), " ", true);
        stage.tell(values.empty() ? "none" : values);
    } else {
        tellValue(stage, step.verb == "last" ? ask(getLastValue) : ask(&IParseResult::get));
    }
}

void next(Stage& stage, const Step& step) {
    const char* const name = step.words.empty() ? nullptr : pointerTo(step.words[0]);
    tellValue(stage, stage.call(&IParseResult::next, stage.result, name));
}

void nextPosition(Stage& stage, const Step&) {
    stage.tell(stage.place(stage.call(&IParseResult::nextPosition, stage.result)));
}

std::string keptArgument(Stage& stage, const char* text) {
    const std::string argument = stage.keep(stage.result, text);
    return argument.empty() ? "''" : argument;
}

void getArgument(Stage& stage, const Step& step) {
    const char* text = nullptr;
    const int status = stage.call(wordOf(step, 0) == "first" ? &IParseResult::getFirstArgument
                                                             : &IParseResult::getNextArgument,
                                  stage.result,
                                  step.words.size() > 1 ? nullptr : &text);
    stage.tell(std::to_string(status) + (text == nullptr ? "" : " " + keptArgument(stage, text)));
}

// "@occurrences=values", empty when nothing is there.
std::string stored(Stage& stage, const char* name) {
    if (!stage.call(&IParseResult::present, stage.result, name, 0, INT_MAX)) {
        return "";
    }
    std::string places;
    const auto nextPlace = [&] { return stage.call(&IParseResult::nextPosition, stage.result); };
    for (int place = nextPlace(); place != INT_MAX; place = nextPlace()) {
        places += (places.empty() ? "@" : ",") + stage.place(place);
    }
    const Value first = stage.call(&IParseResult::get, stage.result, name, 0, INT_MAX);
    const std::string values = walked(stage, first, ",", false);
    return places + (values.empty() ? "" : "=" + values);
}

std::string storedArguments(Stage& stage) {
    std::string all;
    const char* text = nullptr;
    int status = stage.call(&IParseResult::getFirstArgument, stage.result, &text);
    while (status == statusFound) {
        all += (all.empty() ? "-- " : " ") + keptArgument(stage, text);
        status = stage.call(&IParseResult::getNextArgument, stage.result, &text);
    }
    return all;
}

// Names in a row under which the same stands share it.
void show(Stage& stage, const Step& step) {
    std::string all;
    std::string before;
    for (const std::string& name : step.words.empty() ? stage.names : step.words) {
        const std::string content = stored(stage, name.c_str());
        if (content.empty()) {
            continue;
        }
        if (content == before) {
            all.insert(all.size() - content.size(), "," + name);
        } else {
            all += (all.empty() ? "" : " ") + name + content;
        }
        before = content;
    }
    const std::string arguments = storedArguments(stage);
    all += (all.empty() || arguments.empty() ? "" : " ") + arguments;
    stage.tell(all.empty() ? "nothing" : all);
}

const char* askHelp(IParser& parser, const std::string& verb, const char* topic, bool isHidden) {
    return verb == "help"        ? parser.getDescription(isHidden)
           : verb == "topic"     ? parser.getDescription(topic, isHidden)
           : verb == "modifiers" ? parser.getActionModifiersDescription(topic, isHidden)
                                 : parser.getGlobalModifiersDescription(isHidden);
}

void help(Stage& stage, const Step& step) {
    const bool isHidden = !step.words.empty() && step.words.back() == "hidden";
    const char* const topic = step.words.empty() ? nullptr : pointerTo(step.words[0]);
    const char* const text = stage.call(askHelp, *stage.parser, step.verb, topic, isHidden);
    stage.observer.sayLines(stage.keep(stage.parser, text));
}

void wrap(Stage& stage, const Step& step) {
    const auto numberAt = [&step](std::size_t index) {
        return static_cast<std::size_t>(numberOf(wordOf(step, index)));
    };
    const auto layOut =
        [](const char* head, const char* text, std::size_t indent, std::size_t width) {
            return WordWrappedText(head, text, indent, width);
        };
    const WordWrappedText wrapped = stage.call(
        layOut, pointerTo(wordOf(step, 0)), pointerTo(wordOf(step, 1)), numberAt(2), numberAt(3));
    stage.observer.sayLines(wrapped.getText());
}

}  // namespace

Deeds readingDeeds() {
    return {
        {"present",      {Needs::result, askRange}    },
        {"get",          {Needs::result, askRange}    },
        {"last",         {Needs::nothing, askRange}   },
        {"walk",         {Needs::result, askRange}    },
        {"next",         {Needs::result, next}        },
        {"nextPosition", {Needs::result, nextPosition}},
        {"argument",     {Needs::result, getArgument} },
        {"show",         {Needs::result, show}        },
        {"help",         {Needs::parser, help}        },
        {"topic",        {Needs::parser, help}        },
        {"modifiers",    {Needs::parser, help}        },
        {"globals",      {Needs::parser, help}        },
        {"wrap",         {Needs::nothing, wrap}       },
    };
}

}  // namespace zarn_3_3::testing_support
