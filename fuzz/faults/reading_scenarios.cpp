// What is read of a parser and of a result: help texts, errors, values.

#include <climits>
#include <string>

#include "world.h"

namespace zarn_3_3::faults {
namespace {

const char* const build = "build-everything-from-scratch";
const char* const colour = "colour-of-the-output-text";

enum class Asked { all, topic, modifiers, globals };

struct Help {
    const char* name;
    Asked asked;
    const char* topic;
    bool hidden;
    const char* part;  // of the text
};

const Help helps[] = {
    {"actions",                        Asked::all,       nullptr,   false, "Removes what was"},
    {"hidden actions",                 Asked::all,       nullptr,   true,  "Supports"        },
    {"no topic",                       Asked::topic,     nullptr,   true,  "Supports"        },
    {"option",                         Asked::topic,     colour,    false, "At length"       },
    {"hidden option",                  Asked::topic,     colour,    true,  ""                },
    {"action",                         Asked::topic,     "b",       false, "Builds what is"  },
    {"unknown topic",                  Asked::topic,     "nowhere", false, "Help for nowhere"},
    {"modifiers",                      Asked::modifiers, build,     false, "-jobs-that-run"  },
    {"no modifiers",                   Asked::modifiers, "h",       false, ""                },
    {"modifiers of nothing",           Asked::modifiers, nullptr,   false, ""                },
    {"modifiers of an unknown action", Asked::modifiers, "nowhere", true,  "Supports"        },
    {"global modifiers",               Asked::globals,   nullptr,   false, "-ratio-between"  },
    {"hidden global modifiers",        Asked::globals,   nullptr,   true,  "-offset-from"    },
};

const char* read(IParser& parser, const Help& help) {
    switch (help.asked) {
        case Asked::all:
            return parser.getDescription(help.hidden);
        case Asked::topic:
            return parser.getDescription(help.topic, help.hidden);
        case Asked::modifiers:
            return parser.getActionModifiersDescription(help.topic, help.hidden);
        case Asked::globals:
            return parser.getGlobalModifiersDescription(help.hidden);
    }
    return "";
}

void addHelp(Scenarios& all, bool isInForeignLocale) {
    for (const Help& row : helps) {
        Scenario scenario;
        scenario.name = std::string(isInForeignLocale ? "help in another locale: " : "help: ");
        scenario.name += row.name;
        scenario.lack = Lack::help;
        scenario.run = [&row](World& world) {
            return Answer(resultOk, read(*world.tool.parser, row));
        };
        scenario.textPart = row.part;
        scenario.isInForeignLocale = isInForeignLocale;
        all.push_back(scenario);
    }
}

// A vocabulary without actions is shown as a whole.
Scenario helpWithoutActions() {
    Scenario scenario;
    scenario.name = "help: vocabulary without actions";
    scenario.lack = Lack::help;
    scenario.prepare = [](World& world) {
        world.other.emplace();
        for (int i = 0; i < 20; ++i) {
            const std::string name = "option-number-" + std::to_string(i);
            world.other->option(name, vtDouble).defaultValue(i / 2.0);
        }
    };
    scenario.run = [](World& world) {
        return Answer(resultOk, (*world.other)->getDescription(false));
    };
    scenario.textPart = "-option-number-19=<double> (9.5)";
    return scenario;
}

Answer answerOf(const Value& value) {
    return Answer(value.status, value.text == nullptr ? "" : value.text);
}

Answer present(IParseResult& result) { return Answer(result.present(colour, 0, INT_MAX)); }
Answer absent(IParseResult& result) { return Answer(result.present("nowhere", 0, INT_MAX)); }
Answer get(IParseResult& result) { return answerOf(result.get(colour, 0, INT_MAX)); }
Answer getNothing(IParseResult& result) { return answerOf(result.get(colour, 0, 1)); }
Answer getSwitch(IParseResult& result) { return answerOf(result.get(build, 0, INT_MAX)); }
Answer getLast(IParseResult& result) { return answerOf(getLastValue(&result, colour, 0, INT_MAX)); }

Answer getNext(IParseResult& result) {
    result.present("level-by-another-name", 0, INT_MAX);
    const Value first = result.next(nullptr);
    return first.status == statusFound ? answerOf(result.next(nullptr)) : answerOf(first);
}

Answer getNextPosition(IParseResult& result) {
    result.get("level-by-another-name", 0, INT_MAX);
    return Answer(result.nextPosition() == INT_MAX ? 0 : 1);
}

Answer getArguments(IParseResult& result) {
    const char* text = "";
    int status = result.getFirstArgument(&text);
    if (status == statusFound) {
        status = result.getNextArgument(&text);
    }
    return Answer(status, text);
}

struct Query {
    const char* name;
    Answer (*ask)(IParseResult& result);
    int status;
    const char* text;
};

const Query queries[] = {
    {"presence",      present,         1, ""                      },
    {"absence",       absent,          0, ""                      },
    {"value",         get,             0, "always"                },
    {"no value",      getNothing,      1, ""                      },
    {"switch",        getSwitch,       0, ""                      },
    {"next value",    getNext,         0, "1"                     },
    {"next position", getNextPosition, 1, ""                      },
    {"last value",    getLast,         0, "never"                 },
    {"arguments",     getArguments,    0, "another-plain-argument"},
};

void addQueries(Scenarios& all) {
    for (const Query& row : queries) {
        Scenario scenario;
        scenario.name = std::string("query: ") + row.name;
        scenario.lack = Lack::codeAlone;
        scenario.prepare = [](World& world) {
            world.filled.startNewResult();
            world.tool->parseStream(goodLines, world.filled.result);
        };
        scenario.run = [&row](World& world) { return row.ask(*world.filled.result); };
        scenario.code = row.status;
        scenario.textPart = row.text;
        all.push_back(scenario);
    }
}

Scenario readingTheError() {
    Scenario scenario;
    scenario.name = "read: error text";
    scenario.lack = Lack::text;
    scenario.prepare = [](World& world) { world.tool.parseText("-b\n--an-option-never-declared"); };
    scenario.run = [](World& world) { return Answer(resultOk, world.tool->getErrorDesc()); };
    scenario.textPart = "--an-option-never";
    return scenario;
}

}  // namespace

Scenarios readingScenarios() {
    Scenarios all;
    addHelp(all, false);
    addHelp(all, true);
    all.push_back(helpWithoutActions());
    addQueries(all);
    all.push_back(readingTheError());
    return all;
}

}  // namespace zarn_3_3::faults
