#include "world.h"

#include <cstring>

#include "support/expectation.h"

namespace zarn_3_3::faults {
namespace {

const char* const build = "build-everything-from-scratch";
const char* const byAnotherName = "level-by-another-name";

}  // namespace

const char* const goodLines =
    "--build-everything-from-scratch\n--clean\n--no-optimise-the-whole-program\n-o\n--level-of=2\n"
    "--level-by-another-name\n1,2\n--address=1;0xFFFFFFFFFFFFFFFF\n--colour=always\n"
    "--colour=never\n--jobs=3,4,5\n--ratio=5\n--count=7\n--offset -8\n"
    "a-positional-file-name.txt,more\n--\na-plain-argument\nanother-plain-argument";

bool Listener::onOptionParse(const char* name) {
    hear("option ", name);
    return true;
}

bool Listener::onValueParse(const char* name, const Value& value) {
    hear("value ", name);
    hear("", value.text);
    return std::strcmp(value.text, "veto-this-value") != 0;
}

bool Listener::onUknownArgument(const char* argument) {
    hear("unknown ", argument);
    return std::strcmp(argument, "-my-own") != 0;
}

void Listener::hear(const char* kind, const char* text) {
    const Spared spared;
    events.append(kind).append(text).append("; ");
}

void declareAll(IParser& parser) {
    parser.action("build-everything-from-scratch,b", "Builds what is there", vtNull, "a:Actions");
    parser.action("clean-everything-away,c", "Removes what was built", vtNull, "a:Actions");
    parser.action("hidden-action-for-support,h", "Supports", vtNull, "zarn_hidden");
    parser.option("optimise-the-whole-program,o", "", vtBool, "g:Global").defaultValue(true);
    IOption& level = parser.option("level-of-the-optimisation", "An integer", vtS32, "g");
    level.allowValue(1).allowValue(2).synonym(byAnotherName);
    parser.option("address-in-some-form", "A number", vtU64, "g").tokenize(';').defaultValue(1);
    IOption& colour = parser.option("colour-of-the-output-text", "At length", vtString, "g");
    colour.allowValue({"always-and-everywhere", true}).allowValue({"automatic-by-terminal", true});
    colour.allowDeprecatedValue({"never-by-the-old-name", true}, {"none-by-the-new-name", true});
    IOption& jobs = parser.modifier("jobs-that-run-at-once", build, "", vtS32, "m:Modifiers");
    jobs.tag("a-tag-beyond-the-small-buffer,another-tag");
    parser.option("ratio-between-two-numbers", "A fraction", vtDouble, "g").defaultValue(1.5);
    parser.option("count-of-all-that-is-there", "", vtU32, "g");
    parser.option("offset-from-the-beginning", "", vtS64, "zarn_hidden");
    IOption& name = parser.option("name-of-the-tool-in-full", "", vtString, "g");
    name.tokenize(0).defaultValue({"a-default-that-is-long", true});
    parser.option("files-to-be-read-from-disk", "The files", vtString, "").positional();
}

const std::vector<std::string>& allNames() {
    static const std::vector<std::string> names{"build-everything-from-scratch",
                                                "b",
                                                "clean-everything-away",
                                                "c",
                                                "hidden-action-for-support",
                                                "h",
                                                "optimise-the-whole-program",
                                                "o",
                                                "level-of-the-optimisation",
                                                "level-by-another-name",
                                                "address-in-some-form",
                                                "colour-of-the-output-text",
                                                "jobs-that-run-at-once",
                                                "ratio-between-two-numbers",
                                                "count-of-all-that-is-there",
                                                "offset-from-the-beginning",
                                                "name-of-the-tool-in-full",
                                                "files-to-be-read-from-disk"};
    return names;
}

World::World(const Scenario& scenario, State state) : tool(scenario.flags) {
    if (scenario.isInForeignLocale) {
        locale.emplace();
    }
    declareAll(*tool.parser);
    tool->allowSimultaneousActions({build, "clean-everything-away"});
    if (state == State::used) {
        tool->addHandler(&listener);
        tool->parseStream(goodLines, filled.result);
        tool.parseText("--a-text-that-no-short-string-holds");
        tool.startNewResult();
        handedOut = tool->getErrorDesc();
        asItWas = handedOut;
    }
    scenario.prepare(*this);
}

Answer parseLines(World& world, const char* lines) {
    const int code = world.tool.parseText(lines);
    return Answer(code, code == resultOk ? "" : world.tool->getErrorDesc());
}

void expectUsable(World& world) {
    using checking::expectEqual;
    testing_support::Tool& tool = world.tool;
    IOption& later = tool->option("declared-at-the-end,dl", "Twice", vtString, "later:Section");
    later.synonym("declared-by-another-name");
    tool.startNewResult();
    expectEqual(tool.parseText(goodLines), resultOk, "good lines, with " + tool.error());
    expectEqual(tool.values("o") + " " + tool.values(byAnotherName), "0|1 2|1|2", "values");
    expectEqual(tool.values("files-to-be-read-from-disk"),
                "a-positional-file-name.txt|more",
                "positional values");
    expectEqual(tool.stored(), "-- a-plain-argument another-plain-argument", "plain arguments");
    expectEqual(world.handedOut, world.asItWas, "a text handed out before");
}

}  // namespace zarn_3_3::faults
