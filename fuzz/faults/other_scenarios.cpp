// Making parsers and results, handlers, groups of actions, and the values of a client.

#include <climits>
#include <cstring>

#include "world.h"

namespace zarn_3_3::faults {
namespace {

constexpr int wrongAnswer = 99;  // which no operation gives

const char* const text = "A text that is longer than what a string keeps in itself";
const wchar_t* const wideText = L"A text that is longer than what a string keeps in itself";
const std::string standardText = text;
const variant_t value(text);
const std::set<std::string> group{"build-everything-from-scratch", "hidden-action-for-support"};
const std::set<std::string> groupOfGoodLines{"build-everything-from-scratch",
                                             "clean-everything-away"};

Scenario scenario(const char* name, Lack lack, Answer (*run)(World&), int code) {
    Scenario made;
    made.name = name;
    made.lack = lack;
    made.run = run;
    made.code = code;
    return made;
}

// What is not made leaves the pointer alone.
template <typename Interface, typename Make>
Answer answerOfMaking(Interface& before, Make make) {
    Interface* made = &before;
    const int code = make(&made);
    if (code == resultOk) {
        made->destroy();
        return Answer(resultOk);
    }
    return Answer(made == &before ? code : wrongAnswer);
}

Answer makeParser(World& world) {
    return answerOfMaking(*world.tool.parser,
                          [](IParser** out) { return createParser(out, flagValuesStayWhole); });
}

Answer makeResult(World& world) {
    return answerOfMaking(*world.tool.result,
                          [&](IParseResult** out) { return world.tool->createResult(out); });
}

Answer askForAction(World& world) {
    return Answer(world.tool->isOptionDeclared("clean-everything-away", true, "a"));
}

Answer askForOption(World& world) {
    return Answer(world.tool->isOptionDeclared("level-by-another-name", false, nullptr));
}

Answer addGroup(World& world) { return Answer(world.tool->allowSimultaneousActions(group)); }

Answer addHandler(World& world) { return Answer(world.tool->addHandler(world.own.get())); }

Answer removeHandler(World& world) { return Answer(world.tool->removeHandler(&world.listener)); }

Answer copyText(World&) { return Answer(variant_t(text).type()); }

Answer copyStandardText(World&) { return Answer(variant_t(standardText).type()); }

Answer copyWideText(World&) { return Answer(variant_t::wideText(wideText).type()); }

Answer copyBytes(World&) { return Answer(variant_t::blob(text, std::strlen(text)).type()); }

Answer readText(World&) { return Answer(value.get<std::string>() == standardText); }

Answer shareText(World&) {
    variant_t copy = value;
    const variant_t another = copy;
    copy = another;
    return Answer(copy == value);
}

Answer wrapText(World&) {
    const WordWrappedText wrapped("A head that is longer than a string keeps:", text, 10, 30);
    return Answer(std::strchr(wrapped.getText(), '\n') != nullptr);
}

bool isPossible(int code, int right) { return code == right || code == resultException; }

// Whatever declarations were refused, the parse ends in an orderly way.
Answer parseAsDeclared(IParser& parser, IParseResult& result) {
    const int code = parser.parseStream(goodLines, &result);
    const Value last = getLastValue(&result, "jobs-that-run-at-once", 0, INT_MAX);
    const bool isValue = last.text == nullptr || std::strcmp(last.text, "5") == 0;
    const bool isHelp = parser.getDescription(false) != nullptr &&
                        parser.getGlobalModifiersDescription(false) != nullptr;
    if (!isValue || !isHelp || !(isPossible(code, resultOk) || code == resultRuleBroken)) {
        return Answer(wrongAnswer);
    }
    return Answer(code == resultOk ? resultOk : resultException);
}

// All that a tool does, from the start to the end.
Answer liveAsTool(World&) {
    IParser* parser = nullptr;
    if (createParser(&parser, usualFlags) != resultOk) {
        return Answer(resultException);
    }
    declareAll(*parser);
    IParseResult* result = nullptr;
    Answer answer(parser->createResult(&result));
    if (answer.code == resultOk) {
        parser->allowSimultaneousActions(groupOfGoodLines);
        answer = parseAsDeclared(*parser, *result);
        result->destroy();
    }
    parser->destroy();
    return answer;
}

Scenario addingGroup() {
    Scenario made = scenario("group of actions", Lack::no, addGroup, 1);
    made.probe = [](World& world) {
        // What is left of a group that was not added would join the next one.
        world.tool->allowSimultaneousActions(
            {"clean-everything-away", "hidden-action-for-support"});
        return std::to_string(world.tool.parseText("-b\n-h")) + " " +
               std::to_string(world.tool.parseText("-b\n-c\n-h"));
    };
    return made;
}

Scenario addingHandler() {
    Scenario made = scenario("handler is added", Lack::no, addHandler, 1);
    made.prepare = [](World& world) { world.own = std::make_shared<Listener>(); };
    made.probe = [](World& world) {
        auto& own = static_cast<Listener&>(*world.own);
        own.events.clear();
        world.tool.parseText("-b\n--name=a-value");
        return own.events;
    };
    return made;
}

}  // namespace

Scenarios otherScenarios() {
    return {
        scenario("parser is made", Lack::codeAlone, makeParser, resultOk),
        scenario("result is made", Lack::code, makeResult, resultOk),
        scenario("declared action", Lack::no, askForAction, 1),
        scenario("declared option", Lack::no, askForOption, 1),
        addingGroup(),
        addingHandler(),
        scenario("handler is removed", Lack::nothing, removeHandler, 1),
        scenario("value of a text", Lack::exception, copyText, vtString),
        scenario("value of a standard text", Lack::exception, copyStandardText, vtString),
        scenario("value of a wide text", Lack::exception, copyWideText, vtWString),
        scenario("value of bytes", Lack::exception, copyBytes, vtBlob),
        scenario("value read as a text", Lack::exception, readText, 1),
        scenario("value shared", Lack::nothing, shareText, 1),
        scenario("paragraph", Lack::exception, wrapText, 1),
        scenario("life of a tool", Lack::codeAlone, liveAsTool, resultOk),
    };
}

}  // namespace zarn_3_3::faults
