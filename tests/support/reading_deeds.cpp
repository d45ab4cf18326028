// The deeds of scenarios that read results and help.

#include <climits>

#include "support/stage.h"

namespace zarn_3_3::testing_support {
namespace {

struct Range {
    const char* name;
    int from;
    int to;
};

Range rangeOf(const Stage& stage, const Words& words) {
    return {pointerTo(wordOf(words, 0)),
            words.size() > 1 ? stage.number(words[1]) : 0,
            words.size() > 2 ? stage.number(words[2]) : INT_MAX};
}

bool isEmpty(const Value& value) {
    return value.text == nullptr && value.position == INT_MAX && value.value.type() == vtNull;
}

// As it was found, with its kind.
std::string shownAlone(Stage& stage, const Value& value) {
    const char* const text = value.status == statusFound ? value.text : nullptr;
    if (value.as<const char*>() != text || (value.status != statusFound && !isEmpty(value))) {
        return "fields that do not go together";
    }
    if (value.status != statusFound) {
        return value.status == statusNotFound ? "none" : "status " + std::to_string(value.status);
    }
    if (text != nullptr) {
        stage.keep(stage.result, text);
    }
    return stage.shown(value) + " " + kindOf(value.value);
}

template <typename Query>
void tellValue(Stage& stage, Query query) {
    stage.tell(shownAlone(stage, stage.call(query)));
}

void get(Stage& stage, const Step& step) {
    const Range range = rangeOf(stage, step.words);
    tellValue(stage, [&] { return stage.result->get(range.name, range.from, range.to); });
}

void getLast(Stage& stage, const Step& step) {
    const Range range = rangeOf(stage, step.words);
    tellValue(stage, [&] { return getLastValue(stage.result, range.name, range.from, range.to); });
}

void next(Stage& stage, const Step& step) {
    const char* const name = step.words.empty() ? nullptr : pointerTo(step.words[0]);
    tellValue(stage, [&] { return stage.result->next(name); });
}

void nextPosition(Stage& stage, const Step&) {
    stage.tell(stage.place(stage.call([&] { return stage.result->nextPosition(); })));
}

void askPresent(Stage& stage, const Step& step) {
    const Range range = rangeOf(stage, step.words);
    const bool isPresent =
        stage.call([&] { return stage.result->present(range.name, range.from, range.to); });
    stage.tell(isPresent ? "yes" : "no");
}

// The values of a walk, and how it ends if that is unusual. Values without a text are occurrences.
std::string walked(Stage& stage, const Range& range, const char* separator, bool showsOccurrences) {
    IParseResult& result = *stage.result;
    std::string values;
    Value value = stage.call([&] { return result.get(range.name, range.from, range.to); });
    for (; value.status == statusFound; value = stage.call([&] { return result.next(nullptr); })) {
        if (value.text != nullptr || showsOccurrences) {
            values += (values.empty() ? "" : separator) + stage.shown(value);
        }
        if (value.text != nullptr) {
            stage.keep(&result, value.text);
        }
    }
    return values +
           (value.status == statusNotFound ? "" : " status " + std::to_string(value.status));
}

void walk(Stage& stage, const Step& step) {
    const std::string values = walked(stage, rangeOf(stage, step.words), " ", true);
    stage.tell(values.empty() ? "none" : values);
}

std::string keptArgument(Stage& stage, const char* text) {
    const std::string argument = stage.keep(stage.result, text);
    return argument.empty() ? "''" : argument;
}

void getArgument(Stage& stage, const Step& step) {
    const char* text = nullptr;
    const char** const out = step.words.size() > 1 ? nullptr : &text;
    const bool isFirst = wordOf(step.words, 0) == "first";
    const int status = stage.call([&] {
        return isFirst ? stage.result->getFirstArgument(out) : stage.result->getNextArgument(out);
    });
    stage.tell(std::to_string(status) + (text == nullptr ? "" : " " + keptArgument(stage, text)));
}

// "@occurrences=values", empty when nothing is there.
std::string stored(Stage& stage, const std::string& name) {
    IParseResult& result = *stage.result;
    if (!stage.call([&] { return result.present(name.c_str(), 0, INT_MAX); })) {
        return "";
    }
    std::string places;
    const auto nextPlace = [&] { return stage.call([&] { return result.nextPosition(); }); };
    for (int place = nextPlace(); place != INT_MAX; place = nextPlace()) {
        places += (places.empty() ? "@" : ",") + stage.place(place);
    }
    const std::string values = walked(stage, {name.c_str(), 0, INT_MAX}, ",", false);
    return places + (values.empty() ? "" : "=" + values);
}

std::string storedArguments(Stage& stage) {
    std::string all;
    const char* text = nullptr;
    int status = stage.call([&] { return stage.result->getFirstArgument(&text); });
    while (status == statusFound) {
        all += (all.empty() ? "-- " : " ") + keptArgument(stage, text);
        status = stage.call([&] { return stage.result->getNextArgument(&text); });
    }
    return all;
}

// Names in a row under which the same stands share it.
void show(Stage& stage, const Step& step) {
    Words names;
    Words contents;
    for (const std::string& name : step.words.empty() ? stage.names : step.words) {
        const std::string content = stored(stage, name);
        if (!content.empty() && !contents.empty() && contents.back() == content) {
            names.back() += "," + name;
        } else if (!content.empty()) {
            names.push_back(name);
            contents.push_back(content);
        }
    }
    std::string all;
    for (std::size_t i = 0; i < names.size(); ++i) {
        all += (i == 0 ? "" : " ") + names[i] + contents[i];
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
    IParser& parser = *stage.parser;
    const char* const text =
        stage.call([&] { return askHelp(parser, step.verb, topic, isHidden); });
    stage.observer.sayLines(stage.keep(&parser, text));
}

void wrap(Stage& stage, const Step& step) {
    const char* const head = pointerTo(wordOf(step.words, 0));
    const char* const text = pointerTo(wordOf(step.words, 1));
    const auto indent = static_cast<std::size_t>(numberOf(wordOf(step.words, 2)));
    const auto width = static_cast<std::size_t>(numberOf(wordOf(step.words, 3)));
    const WordWrappedText wrapped =
        stage.call([&] { return WordWrappedText(head, text, indent, width); });
    stage.observer.sayLines(wrapped.getText());
}

}  // namespace

Deeds readingDeeds() {
    return {
        {"present",      {Needs::result, askPresent}  },
        {"get",          {Needs::result, get}         },
        {"last",         {Needs::nothing, getLast}    },
        {"walk",         {Needs::result, walk}        },
        {"next",         {Needs::result, next}        },
        {"nextPosition", {Needs::result, nextPosition}},
        {"argument",     {Needs::result, getArgument} },
        {"show",         {Needs::result, show}        },
    };
}

Deeds helpDeeds() {
    return {
        {"help",      {Needs::parser, help} },
        {"topic",     {Needs::parser, help} },
        {"modifiers", {Needs::parser, help} },
        {"globals",   {Needs::parser, help} },
        {"wrap",      {Needs::nothing, wrap}},
    };
}

}  // namespace zarn_3_3::testing_support
