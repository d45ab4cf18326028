// Arguments of every kind, right and wrong.

#include "world.h"

namespace zarn_3_3::faults {
namespace {

constexpr int broken = resultRuleBroken;

struct Line {
    const char* name;
    const char* lines;
};

struct RefusedLine {
    const char* name;
    const char* lines;
    int code;
    const char* error;  // a part of it
};

const Line lines[] = {
    {"nothing",                "# a comment\n\n"                                             },
    {"many arguments",         goodLines                                                     },
    {"action",                 "-b"                                                          },
    {"with the log",           "zarnoption=zarnlogenable=1\n-b\n--name=a-long-text\n-my-own" },
    {"abbreviated action",     "--build"                                                     },
    {"other dashes",           "-b\n\xE2\x80\x94optimise-the-whole-program"                  },
    {"boolean",                "-b\n--optimise-the-whole-program\n--no-optimise-the-whole"   },
    {"integer",                "-b\n--level-by-another-name=1"                               },
    {"unsigned integer",       "-b\n--count-of-all-that-is-there=4294967295"                 },
    {"long integer",           "-b\n--offset-from-the-beginning=-9223372036854775808"        },
    {"large integer",          "-b\n--address-in-some-form=18446744073709551615"             },
    {"hexadecimal",            "-b\n--address-in-some-form=0xFFFFFFFFFFFFFFFF"               },
    {"double",                 "-b\n--ratio-between-two-numbers=1e3"                         },
    {"tiny double",            "-b\n--ratio-between-two-numbers=1e-400"                      },
    {"text",                   "-b\n--name-of-the-tool=a long value, with a comma"           },
    {"allowed text",           "-b\n--colour-of-the-output-text=always"                      },
    {"deprecated text",        "-b\n--colour-of-the-output-text=never-by"                    },
    {"next argument",          "-b\n--name-of-the-tool-in-full\nvalue in the next argument"  },
    {"value behind a blank",   "-b\n--name-of-the-tool-in-full value behind the first blank" },
    {"many pieces",            "-b\n--address-in-some-form=1;2;3;4;5;6;7;8;9;10;11;12;13;14" },
    {"modifier of its action", "-b\n--jobs-that-run-at-once=3,4,5"                           },
    {"positional",             "-b\na-positional-file-name.txt,another-file-name.txt"        },
    {"plain arguments",        "-b\n--\na-plain-argument\n--another-plain-argument\n--"      },
    {"a handler's own",        "-b\n-my-own"                                                 },
    {"repetition",             "-b\n-o\n-o\n-o\n-o\n--level-of=1\n--level-of=2\n--level-of=1"},
};

const RefusedLine refusedLines[] = {
    {"dash alone",         "-b\n-\n",                      broken,       "Unknown option: -"    },
    {"unknown option",     "-b\n--never-declared",         broken,       "Unknown option: "     },
    {"nameless option",    "-b\n--=value-of-an-option",    broken,       "option '--=value"     },
    {"ambiguous option",   "-b\n--co=value",               broken,       "Ambiguous option 'co'"},
    {"value missing",      "-b\n--colour-of-the-output",   broken,       "requires a value in"  },
    {"option for a value", "-b\n--address\n--colour",      broken,       "seems to be an option"},
    {"switch with value",  "--build=now",                  broken,       "not requires a value" },
    {"boolean with value", "-b\n--no-opt=1",               broken,       "is boolean and should"},
    {"no piece",           "-b\n--address=;;;;;;",         broken,       "No value parsed"      },
    {"no number",          "-b\n--level-of=1,one-half",    broken,       "can not parse 'one-"  },
    {"number not allowed", "-b\n--level-of-the=3",         broken,       "not allow value '3'"  },
    {"text not allowed",   "-b\n--colour=sometimes",       broken,       "not allow value 'some"},
    {"ambiguous text",     "-b\n--colour-of-the=a",        broken,       "Ambiguous value"      },
    {"refused value",      "-b\n1,veto-this-value,2",      resultVetoed, "is not valid for"     },
    {"two actions",        "-b\n-h",                       broken,       "only one action"      },
    {"another's modifier", "-c\n--jobs-that=1",            broken,       "doesn't accept option"},
    {"no action",          "--name-of-the-tool-in-full=x", broken,       "No action defined."   },
};

const Line foreignLines[] = {
    {"integers",           "-b\n--level-of=1\n--offset-from=-1.234.567\n--count=1.234.567"},
    {"hexadecimal",        "-b\n--address-in-some-form=0xFFFF;10h;1.234"                  },
    {"boolean and double", "-b\n-o\n--ratio-between=1.234,5"                              },
};

const RefusedLine refusedForeignLines[] = {
    {"no number",          "-b\n--offset=1.23.456", broken, "can not parse '1.23.456'"},
    {"number not allowed", "-b\n--level-of-the=3",  broken, "does not allow value '3'"},
};

const Line behindLines[] = {
    {"positional", "-b\n--\na-positional-file-name.txt\n--also-positional-here"},
};

const RefusedLine refusedBehindLines[] = {
    {"no piece", "-b\n--\na-positional-file-name.txt\n,,,", broken, "No value parsed"},
};

const Line restLines[] = {
    {"positional", "-b\na-positional-file-name.txt\n--\n--jobs-that-run-at-once=1"},
};

const RefusedLine refusedRestLines[] = {
    {"no piece", "-b\na-positional-file-name.txt\n--\n,,,", broken, "No value parsed"},
};

// Lines are parsed in a world of `common`.
template <std::size_t lineCount, std::size_t refusedCount>
void add(Scenarios& all,
         const Scenario& common,
         const Line (&accepted)[lineCount],
         const RefusedLine (&refused)[refusedCount]) {
    const auto addOne = [&](const RefusedLine& row) {
        Scenario scenario = common;
        scenario.name += std::string(": ") + row.name;
        scenario.lack = Lack::code;
        scenario.run = [text = row.lines](World& world) { return parseLines(world, text); };
        scenario.code = row.code;
        scenario.textPart = row.error;
        all.push_back(scenario);
    };
    for (const Line& row : accepted) {
        addOne({row.name, row.lines, resultOk, ""});
    }
    for (const RefusedLine& row : refused) {
        addOne(row);
    }
}

template <std::size_t size>
Answer parseArguments(World& world, const char* const (&line)[size]) {
    const int code = world.tool->parseArgsVector(size, line, world.tool.result);
    return Answer(code, code == resultOk ? "" : world.tool->getErrorDesc());
}

Answer parseWholeLine(World& world) {
    const char* const line[] = {"tool", "-b", "--level-of", "1", "--colour=alw", "a-file-name"};
    return parseArguments(world, line);
}

Answer parseDefaultsAlone(World& world) {
    const char* const line[] = {"tool"};
    return parseArguments(world, line);
}

Answer parseUnknownArgument(World& world) {
    const char* const line[] = {"tool", "-b", "--a-name-that-was-never-declared"};
    return parseArguments(world, line);
}

Answer parseWithoutResult(World& world) {
    const int code = world.tool->parseStream("-b", nullptr);
    return Answer(code, world.tool->getErrorDesc());
}

Answer parseWithoutArguments(World& world) {
    const int code = world.tool->parseArgsVector(2, nullptr, world.tool.result);
    return Answer(code, world.tool->getErrorDesc());
}

}  // namespace

Scenarios lineScenarios() {
    Scenarios all;
    Scenario common;
    common.name = "line";
    add(all, common, lines, refusedLines);
    common.name = "line behind the terminator";
    common.flags = usualFlags | flagPositionalBehindTerminator;
    add(all, common, behindLines, refusedBehindLines);
    common.name = "line with all the rest positional";
    common.flags = flagPositionalTakesRest;
    add(all, common, restLines, refusedRestLines);
    common.name = "line in another locale";
    common.flags = usualFlags;
    common.isInForeignLocale = true;
    add(all, common, foreignLines, refusedForeignLines);

    all.push_back({"arguments: whole line", Lack::code, parseWholeLine});
    all.push_back({"arguments: defaults alone", Lack::code, parseDefaultsAlone});
    all.push_back({"arguments: unknown",
                   Lack::code,
                   parseUnknownArgument,
                   resultRuleBroken,
                   "Unknown option: --a-name"});
    all.push_back({"arguments: no result", Lack::code, parseWithoutResult, resultException});
    all.push_back({"arguments: none", Lack::code, parseWithoutArguments, resultException, "null"});
    return all;
}

}  // namespace zarn_3_3::faults
