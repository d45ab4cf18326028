// Handlers that throw, and handlers that use the library inside an event, while memory runs out.

#include <climits>
#include <new>
#include <stdexcept>

#include "world.h"

namespace zarn_3_3::faults {
namespace {

enum class Moment { option, value, unknown };

const char* const line = "-b\n--name-of-the-tool-in-full=a-value-of-some-length\n-my-own";

// Calls a function at one kind of moment, but not for what it causes itself.
class Doer final : public EventHandler {
public:
    Doer(Moment actAt, std::function<void()> action) : moment(actAt), act(std::move(action)) {}

    bool onOptionParse(const char*) override { return doAt(Moment::option); }
    bool onValueParse(const char*, const Value&) override { return doAt(Moment::value); }
    bool onUknownArgument(const char*) override { return doAt(Moment::unknown); }

private:
    bool doAt(Moment now) {
        if (now == moment && !isBusy) {
            isBusy = true;
            const Idle idle{isBusy};
            act();
        }
        return true;
    }

    struct Idle {
        bool& isBusy;
        ~Idle() { isBusy = false; }
    };

    Moment moment;
    std::function<void()> act;
    bool isBusy = false;
};

// An operation inside an event may fail while the parse around it need not; so that there is one
// outcome, the parse is made to fail with it.
void require(int code, int expected) {
    if (code == resultException) {
        throw std::bad_alloc();
    }
    if (code != expected) {
        throw std::logic_error("a wrong answer inside an event");
    }
}

// The text of this one fits no short string, so that keeping it takes memory.
const std::runtime_error prepared(std::string(200, 'x'));

void throwLongText(World&) { throw prepared; }

void throwNumber(World&) { throw 5; }

void parseAgain(World& world) {
    IParseResult* result = nullptr;
    require(world.tool->createResult(&result), resultOk);
    const int code = world.tool->parseStream("-b\n--jobs-that-run-at-once=1,2,3", result);
    result->destroy();
    require(code, resultOk);
}

void failAgain(World& world) {
    IParseResult* result = nullptr;
    require(world.tool->createResult(&result), resultOk);
    const int code = world.tool->parseStream("-b\n--an-option-that-is-nowhere", result);
    result->destroy();
    require(code, resultRuleBroken);
}

void declareMore(World& world) {
    for (int i = 0; i < 10; ++i) {
        world.tool->option("item-declared-in-an-event", "A description", vtString, "g");
    }
}

void query(World& world) {
    IParseResult& result = *world.tool.result;
    require(result.get("name-of-the-tool-in-full", 0, INT_MAX).status, statusNotFound);
    require(result.present("b", 0, INT_MAX) ? 0 : 1, 0);
}

void readHelp(World& world) { world.tool->getDescription("b", false); }

void makeAnother(World&) {
    IParser* parser = nullptr;
    require(createParser(&parser, 0), resultOk);
    parser->destroy();
}

void removeAndAdd(World& world) {
    world.tool->removeHandler(world.own.get());
    require(world.tool->addHandler(world.own.get()) ? resultOk : resultException, resultOk);
}

Answer parseAndCatch(World& world, const char* lines) {
    try {
        return parseLines(world, lines);
    } catch (int) {
        return Answer(threwOther);
    }
}

struct Deed {
    const char* name;
    void (*act)(World& world);
    Moment moment;
    int code;
};

const Deed deeds[] = {
    {"throws at an option",            throwLongText, Moment::option,  resultException},
    {"throws at a value",              throwLongText, Moment::value,   resultException},
    {"throws at the unknown",          throwLongText, Moment::unknown, resultException},
    {"throws a number at an option",   throwNumber,   Moment::option,  threwOther     },
    {"throws a number at a value",     throwNumber,   Moment::value,   threwOther     },
    {"throws a number at the unknown", throwNumber,   Moment::unknown, threwOther     },
    {"parses again",                   parseAgain,    Moment::value,   resultOk       },
    {"parses again, wrongly",          failAgain,     Moment::option,  resultOk       },
    {"declares more",                  declareMore,   Moment::option,  resultOk       },
    {"asks the result",                query,         Moment::value,   resultOk       },
    {"reads help",                     readHelp,      Moment::unknown, resultOk       },
    {"makes a parser",                 makeAnother,   Moment::value,   resultOk       },
    {"goes and comes back",            removeAndAdd,  Moment::value,   resultOk       },
};

}  // namespace

Scenarios handlerScenarios() {
    Scenarios all;
    for (const Deed& row : deeds) {
        Scenario scenario;
        scenario.name = std::string("handler ") + row.name;
        scenario.lack = Lack::code;
        scenario.prepare = [&row](World& world) {
            world.own = std::make_shared<Doer>(row.moment, [&row, &world] { row.act(world); });
            world.tool->addHandler(world.own.get());
        };
        scenario.run = [](World& world) {
            world.tool->addHandler(world.own.get());  // when the operation is repeated
            const Answer answer = parseAndCatch(world, line);
            world.tool->removeHandler(world.own.get());
            return answer;
        };
        scenario.code = row.code;
        scenario.textPart = row.code == resultException ? prepared.what() : "";
        all.push_back(scenario);
    }
    return all;
}

}  // namespace zarn_3_3::faults
