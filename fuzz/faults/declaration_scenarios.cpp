// Declarations of every kind, and settings. What one leaves behind shows in the probe.

#include "world.h"

namespace zarn_3_3::faults {
namespace {

const char* const name = "item-that-is-declared-late";
const char* const names = "item-that-is-declared-late,i";
const char* const description = "A description that is longer than a string keeps in itself";
const char* const title = "s:A title that is longer than a string keeps in itself";

// What can be seen of the item, with a line that gives it.
std::string describeItem(World& world, const char* line) {
    IParser& parser = *world.tool.parser;
    world.tool.startNewResult();
    const int code = world.tool.parseText(line);
    std::string seen = std::to_string(code) + (code == resultOk ? "" : world.tool.error());
    seen += " " + world.tool.values(name) + " ";
    seen += parser.getDescription(false);
    seen += parser.getDescription(name, false);
    seen += parser.getActionModifiersDescription("build-everything-from-scratch", false);
    seen += parser.getGlobalModifiersDescription(false);
    return seen;
}

// A declaration that is refused may leave its section behind, but nothing else.
std::string describeDeclared(World& world, const char* line) {
    const bool isDeclared = world.tool->isOptionDeclared(name, false, nullptr) ||
                            world.tool->isOptionDeclared(name, true, nullptr);
    return isDeclared ? describeItem(world, line) : "not declared";
}

struct Type {
    const char* name;
    das_variant_type_t type;
    const char* line;
};

const Type types[] = {
    {"switch",           vtNull,   "-b\n-i"                        },
    {"boolean",          vtBool,   "-b\n--no-item-that-is-declared"},
    {"integer",          vtS32,    "-b\n--item-that-is=1,2"        },
    {"unsigned integer", vtU32,    "-b\n--item-that-is=1,2"        },
    {"64 bit integer",   vtS64,    "-b\n--item-that-is=1,2"        },
    {"unsigned 64 bit",  vtU64,    "-b\n--item-that-is=0x1,2"      },
    {"double",           vtDouble, "-b\n--item-that-is=1.5"        },
    {"text",             vtString, "-b\n--item-that-is=1,2"        },
};

// A declaration answers with a reference alone.
template <typename Declare>
Scenario declaration(const std::string& label, Declare declare, const char* line) {
    Scenario scenario;
    scenario.name = "declare: " + label;
    scenario.run = [declare](World& world) {
        declare(*world.tool.parser);
        return Answer();
    };
    scenario.probe = [line](World& world) { return describeDeclared(world, line); };
    return scenario;
}

void addTypes(Scenarios& all) {
    for (const Type& row : types) {
        const auto declare = [&row](IParser& parser) {
            parser.option(names, description, row.type, "g");
        };
        all.push_back(declaration(row.name, declare, row.line));
    }
}

void declareAction(IParser& parser) { parser.action(names, description, vtNull, "a"); }
void declareModifier(IParser& parser) {
    parser.modifier(names, "build-everything-from-scratch,clean-everything-away", "", vtS32, "m");
}
void declareThreeNames(IParser& parser) {
    parser.option("item-that-is-declared-late,item-by-its-other-name,i", "", vtS32, "g");
}
void declareNewSection(IParser& parser) { parser.option(names, description, vtS32, title); }
void declareHidden(IParser& parser) { parser.option(names, "", vtS32, "zarn_hidden:Hidden"); }
void declareTakenName(IParser& parser) {
    parser.option("jobs-that-run-at-once,item-that-is-declared-late", "", vtS32, "g");
}
void declareFourNames(IParser& parser) {
    parser.option("item-that-is-declared-late,another-name-of-it,i,j", "", vtS32, "g");
}
// Nothing can be chained onto a refused item either.
void declareAndSetRefused(IParser& parser) {
    IOption& item = parser.option("jobs-that-run-at-once", "", vtString, "g");
    item.synonym(name).tag("a-tag-beyond-the-small-buffer").allowValue({"a-value", true});
    item.allowDeprecatedValue({"another-value", true}, {"a-value", true}).positional();
}

struct Declaration {
    const char* name;
    void (*declare)(IParser& parser);
    const char* line;
};

const Declaration declarations[] = {
    {"action",                     declareAction,        "--item-that-is-declared"  },
    {"modifier",                   declareModifier,      "-c\n--item-that-is=1,2"   },
    {"three names",                declareThreeNames,    "-b\n--item-by-its-other=1"},
    {"new section",                declareNewSection,    "-b\n--item-that-is=1"     },
    {"hidden section",             declareHidden,        "-b\n--item-that-is=1"     },
    {"name that is taken",         declareTakenName,     "-b\n--item-that-is=1"     },
    {"four names",                 declareFourNames,     "-b\n--item-that-is=1"     },
    {"settings of a refused item", declareAndSetRefused, "-b\n--item-that-is=1"     },
};

struct Setting {
    const char* name;
    das_variant_type_t type;
    void (*set)(IOption& item);
    const char* line;
    void (*prepare)(IOption& item);
};

// Values are borrowed, so that only the library takes memory.
void addSynonym(IOption& item) { item.synonym("another-name-of-the-item"); }
void allowNumber(IOption& item) { item.allowValue(1); }
void allowText(IOption& item) { item.allowValue({"a-text-that-is-allowed", true}); }
void deprecateText(IOption& item) {
    item.allowDeprecatedValue({"another-text", true}, {"b", true});
}
void setDefault(IOption& item) { item.defaultValue({"a-default-that-is-long", true}); }
void setSeparator(IOption& item) { item.tokenize(':'); }
void makePositional(IOption& item) { item.positional(); }
void addTags(IOption& item) { item.tag("a-tag-that-is-nowhere,build-everything-from-scratch"); }

// What is set before.
void leave(IOption&) {}
void keepWhole(IOption& item) { item.tokenize(0); }

const Setting settings[] = {
    {"synonym",         vtString, addSynonym,     "-b\n--another-name-of-the-item=1", leave    },
    {"allowed number",  vtS32,    allowNumber,    "-b\n--item-that-is=2",             leave    },
    {"allowed text",    vtString, allowText,      "-b\n--item-that-is=a,a-text",      keepWhole},
    {"deprecated text", vtString, deprecateText,  "-b\n--item-that-is=another",       allowText},
    {"default",         vtString, setDefault,     "-b",                               leave    },
    {"separator",       vtString, setSeparator,   "-b\n--item-that-is=1:2",           leave    },
    {"positional",      vtString, makePositional, "-b",                               leave    },
    {"tags",            vtString, addTags,        "-c\n--item-that-is=1",             leave    },
};

void addSettings(Scenarios& all) {
    for (const Setting& row : settings) {
        Scenario scenario;
        scenario.name = std::string("set: ") + row.name;
        scenario.prepare = [&row](World& world) {
            world.item = &world.tool->option(names, description, row.type, "g");
            row.prepare(*world.item);
        };
        scenario.run = [&row](World& world) {
            row.set(*world.item);
            return Answer();
        };
        scenario.probe = [&row](World& world) { return describeItem(world, row.line); };
        all.push_back(scenario);
    }
}

Scenario addingOptionFiles() {
    Scenario scenario;
    scenario.name = "declare: option file";
    scenario.run = [](World& world) {
        return Answer(world.tool->addOptionFileOption("A file with further arguments", "g"));
    };
    scenario.code = 1;  // always true
    scenario.probe = [](World& world) {
        return std::to_string(world.tool.parseText("-b\n--option-file=/a/file/that/is/nowhere"));
    };
    return scenario;
}

}  // namespace

Scenarios declarationScenarios() {
    Scenarios all;
    addTypes(all);
    for (const Declaration& row : declarations) {
        all.push_back(declaration(row.name, row.declare, row.line));
    }
    addSettings(all);
    all.push_back(addingOptionFiles());
    return all;
}

}  // namespace zarn_3_3::faults
