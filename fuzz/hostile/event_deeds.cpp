// Handlers that, inside every event, do everything that they may do.

#include <array>
#include <climits>
#include <fstream>
#include <new>
#include <stdexcept>
#include <utility>

#include "hostile.h"
#include "support/expectation.h"
#include "support/tool.h"

namespace zarn_3_3::hostile {
namespace {

using checking::expect;
using checking::expectEqual;
using testing_support::Tool;
using testing_support::Words;

class Scene;

class Witness final : public EventHandler {
public:
    bool onOptionParse(const char* name) override { return hear(std::string("option ") + name); }
    bool onValueParse(const char*, const Value& value) override {
        return hear(std::string("value ") + value.text);
    }
    bool onUknownArgument(const char* argument) override {
        return hear(std::string("unknown ") + argument);
    }

    Scene* scene = nullptr;
    Words heard;

private:
    bool hear(const std::string& event);
};

// What undisturbed handlers see.
struct Reference {
    int code = resultOk;
    std::string stored;
    Words heard;
};

constexpr std::size_t never = static_cast<std::size_t>(-1);
constexpr int deepest = 3;

void declareNames(Tool& tool) {
    tool.option("level", vtS32);
    tool.option("dry", vtNull);
    tool.option("file", vtS32).positional();
    tool->option("extra", "", vtS32, "");
}

// Of five handlers in the order of their addresses, the three in the middle are registered, and the
// one in the very middle acts at one event.
class Scene {
public:
    explicit Scene(const Words& arguments) : line(arguments) {
        declareNames(tool);
        tool->addOptionFileOption("", "");
        for (Witness& witness : witnesses) {
            witness.scene = this;
        }
        for (std::size_t i = 1; i <= 3; ++i) {
            tool->addHandler(&witnesses[i]);
        }
    }

    void hear(Witness& witness, const std::string& event) {
        const bool isActor = &witness == &witnesses[2];
        if (depth > 0) {
            if (isActor && depth < deepest) {
                parseDeeper();
            }
            return;
        }
        witness.heard.push_back(event);
        if (isActor && witness.heard.size() == actAt + 1) {
            act(*this);
        }
    }

    // Parses the same again, into another result.
    void parseDeeper() {
        ++depth;
        IParseResult* const outer = tool.result;
        tool->createResult(&tool.result);
        expectEqual(tool.parse(line), reference.code, "code of an inner parse");
        expectEqual(tool.stored(), reference.stored, "stored by an inner parse");
        tool.result->destroy();
        tool.result = outer;
        --depth;
    }

    Tool tool{flagPositionalBehindTerminator | flagPositionalWithoutDash};
    std::array<Witness, 5> witnesses;
    std::size_t actAt = never;
    void (*act)(Scene& scene) = nullptr;
    Words line;
    Reference reference;
    int depth = 0;
};

bool Witness::hear(const std::string& event) {
    scene->hear(*this, event);
    return true;
}

void removeSelf(Scene& s) { s.tool->removeHandler(&s.witnesses[2]); }
void removeOneBefore(Scene& s) { s.tool->removeHandler(&s.witnesses[1]); }
void removeNext(Scene& s) { s.tool->removeHandler(&s.witnesses[3]); }
void removeAll(Scene& s) {
    for (Witness& witness : s.witnesses) {
        s.tool->removeHandler(&witness);
    }
}
void addBelow(Scene& s) { s.tool->addHandler(&s.witnesses[0]); }
void addAbove(Scene& s) { s.tool->addHandler(&s.witnesses[4]); }
void goAndComeBack(Scene& s) {
    removeSelf(s);
    s.tool->addHandler(&s.witnesses[2]);
}

void declareMore(Scene& s) {
    for (int i = 0; i < 100; ++i) {
        const std::string name = "later" + std::to_string(i);
        s.tool->option(name.c_str(), "", vtS32, name.c_str()).synonym("level").defaultValue(i);
    }
    s.tool->action("q", "", vtNull, "");
    s.tool->option("zz", "", vtS32, "").positional();
}

void query(Scene& s) {
    IParseResult& result = *s.tool.result;
    for (const char* const name : {"level", "dry", "file", "option-file", "nowhere"}) {
        for (Value value = result.get(name, 0, INT_MAX); value.status == statusFound;
             value = result.next(name)) {
            result.nextPosition();
        }
        result.present(name, 0, INT_MAX);
        getLastValue(&result, name, 0, INT_MAX);
    }
    const char* text = nullptr;
    for (int status = result.getFirstArgument(&text); status == statusFound;
         status = result.getNextArgument(&text)) {
        expect(text != nullptr, "plain argument");
    }
}

void parseDeeper(Scene& s) { s.parseDeeper(); }

// With another parser of the same names, which does not read the files that are named.
void parseIntoSameResult(Scene& s) {
    Tool other;
    declareNames(other);
    other.option("option-file");
    expectEqual(
        other->parseStream("--extra=9\n--extra=8", s.tool.result), resultOk, "other parser");
    expect(getLastValue(s.tool.result, "extra", 0, INT_MAX).position > 0, "stored by another");
}

void failInside(Scene& s) {
    IParseResult* result = nullptr;
    expectEqual(s.tool->createResult(&result), resultOk, "result");
    const int before = std::exchange(s.depth, deepest);  // nobody acts inside
    expectEqual(s.tool->parseStream("--level=x", result), resultRuleBroken, "inner failure");
    s.depth = before;
    result->destroy();
}

void readTexts(Scene& s) {
    s.tool->getDescription(false);
    s.tool->getDescription("level", true);
    s.tool->getErrorDesc();
}

void throwStandard(Scene&) { throw std::runtime_error(std::string(100, 'x')); }
void throwBadAlloc(Scene&) { throw std::bad_alloc(); }
void throwNumber(Scene&) { throw 5; }
void throwText(Scene&) { throw std::string("no exception"); }

enum class Way { returns, standard, foreign };

struct Deed {
    const char* name;
    void (*act)(Scene& scene);
    // For each of the three handlers what it hears: 'a' all, 't' up to and with this event, 'b'
    // what came before.
    const char* hears;
    Way way;
};

const Deed deeds[] = {
    {"removes itself",         removeSelf,          "ata", Way::returns },
    {"removes the one before", removeOneBefore,     "taa", Way::returns },
    {"removes the next",       removeNext,          "aab", Way::returns },
    {"removes all",            removeAll,           "ttb", Way::returns },
    {"adds one below",         addBelow,            "aaa", Way::returns },
    {"adds one above",         addAbove,            "aaa", Way::returns },
    {"goes and comes back",    goAndComeBack,       "aaa", Way::returns },
    {"asks the result",        query,               "aaa", Way::returns },
    {"parses three deep",      parseDeeper,         "aaa", Way::returns },
    {"fills the same result",  parseIntoSameResult, "aaa", Way::returns },
    {"fails inside",           failInside,          "aaa", Way::returns },
    {"reads texts",            readTexts,           "aaa", Way::returns },
    {"throws",                 throwStandard,       "ttb", Way::standard},
    {"throws std::bad_alloc",  throwBadAlloc,       "ttb", Way::standard},
    {"throws a number",        throwNumber,         "ttb", Way::foreign },
    {"throws a text",          throwText,           "ttb", Way::foreign },
};

struct Line {
    const char* name;
    Words arguments;
};

Reference makeReference(const Words& arguments) {
    Scene scene(arguments);
    Reference reference;
    reference.code = scene.tool.parse(arguments);
    reference.stored = scene.tool.stored();
    reference.heard = scene.witnesses[2].heard;
    expect(reference.code == resultOk && reference.heard.size() > 3, "undisturbed parse");
    return reference;
}

// What is thrown, and the code otherwise.
Way parse(Scene& scene, int& code) {
    try {
        code = scene.tool.parse(scene.line);
    } catch (int) {
        return Way::foreign;
    } catch (const std::string&) {
        return Way::foreign;
    }
    return code == resultException ? Way::standard : Way::returns;
}

void expectHeard(const Scene& scene, const Deed& deed) {
    for (std::size_t i = 0; i < 3; ++i) {
        Words expected = scene.reference.heard;
        if (deed.hears[i] != 'a') {
            expected.resize(scene.actAt + (deed.hears[i] == 't' ? 1 : 0));
        }
        expect(scene.witnesses[i + 1].heard == expected,
               "handler " + std::to_string(i) + " heard something else");
    }
}

void perform(const Deed& deed, const Words& arguments, const Reference& reference, std::size_t at) {
    const checking::Place place(std::string(deed.name) + " at '" + reference.heard[at] + "'");
    Scene scene(arguments);
    scene.reference = reference;
    scene.act = deed.act;
    scene.actAt = at;
    int code = -1;
    expect(parse(scene, code) == deed.way, "the way in which the parse ends");
    if (deed.way == Way::returns) {
        expectEqual(code, reference.code, "code");
        expectEqual(scene.tool.stored(), reference.stored, "stored");
    } else if (deed.way == Way::standard) {
        expect(!scene.tool.error().empty(), "error text");
    }
    expectHeard(scene, deed);

    scene.actAt = never;
    scene.tool.startNewResult();
    expectEqual(scene.tool.parse(arguments), reference.code, "code of the next parse");
    expectEqual(scene.tool.stored(), reference.stored, "stored by the next parse");
}

// New items count from the next argument on, so the end is not that of an undisturbed parse; but
// there is one.
void declareAt(const Words& arguments, const Reference& reference, std::size_t at) {
    const checking::Place place("declares more at '" + reference.heard[at] + "'");
    Scene scene(arguments);
    scene.act = declareMore;
    scene.actAt = at;
    const int code = scene.tool.parse(arguments);
    expect(code == resultOk || code == resultRuleBroken, "code " + std::to_string(code));
    expect(scene.tool->isOptionDeclared("later99", false, "later99"), "the last is declared");
    expect(scene.tool.stored().substr(0, 5) == reference.stored.substr(0, 5), "stored before");
}

}  // namespace

long actInsideEvents(const std::string& folder) {
    const std::string file = folder + "/arguments";
    std::ofstream(file) << "--level=1,2,3\n-q\n--dry\n--\n6,7\n";
    const Line lines[] = {
        {"command line",          {"--level=1,2,3", "-q", "--dry", "5"} },
        {"behind the terminator", {"--dry", "--", "4,5", "-6"}          },
        {"option file",           {"--level=9", "--option-file=" + file}},
    };
    long acts = 0;
    for (const Line& line : lines) {
        const checking::Place place(line.name);
        const Reference reference = makeReference(line.arguments);
        for (std::size_t at = 0; at < reference.heard.size(); ++at) {
            for (const Deed& deed : deeds) {
                perform(deed, line.arguments, reference, at);
                ++acts;
            }
            declareAt(line.arguments, reference, at);
            ++acts;
        }
    }
    return acts;
}

}  // namespace zarn_3_3::hostile
