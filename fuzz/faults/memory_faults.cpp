#include "memory_faults.h"

#include <fcntl.h>
#include <unistd.h>

#include <climits>
#include <exception>
#include <new>

#include "recognizers/argument_parser.h"
#include "support/expectation.h"
#include "support/stored.h"
#include "world.h"

namespace zarn_3_3::faults {
namespace {

using checking::expect;
using checking::expectEqual;
using checking::Stored;

constexpr const char* rendererText = "Unknown error handled.";

enum class Outage {
    once,     // one allocation fails
    lasting,  // and all that follow
    tillEnd,  // the same, and what there is has to be destroyed without memory
};

struct Fault {
    Outage outage;
    long allocation;  // that fails first, counted from 1; 0: none
};

// All that can be seen of an operation.
struct Outcome {
    int code = resultOk;
    std::string text;
    std::string error;  // when the memory is back
    std::string events;
    std::string probe;
    Stored stored;
};

bool operator==(const Outcome& left, const Outcome& right) {
    return left.code == right.code && left.text == right.text && left.error == right.error &&
           left.events == right.events && left.probe == right.probe &&
           checking::describe(left.stored) == checking::describe(right.stored);
}

std::string describe(const Outcome& outcome) {
    return std::to_string(outcome.code) + " '" + outcome.text + "', error '" + outcome.error +
           "', heard " + outcome.events + "stored " + checking::describe(outcome.stored) +
           ", probe " + outcome.probe;
}

// What undisturbed operations do, to which the disturbed ones are compared.
struct Reference {
    std::string probeBefore;
    Outcome first;
    Outcome second;  // when it is repeated in the same parser
    Stored defaults;
};

bool endsWith(const std::string& text, const std::string& end) {
    return text.size() >= end.size() && text.substr(text.size() - end.size()) == end;
}

Answer run(World& world, const Scenario& scenario, const Fault& fault) {
    memory.hasStruck = false;
    memory.isLasting = fault.outage != Outage::once;
    memory.left = fault.allocation;
    try {
        return scenario.run(world);
    } catch (const std::bad_alloc&) {
        return Answer(threwBadAlloc);
    } catch (const std::exception&) {
        return Answer(threwOther);
    }
}

Outcome perform(World& world, const Scenario& scenario, const Fault& fault) {
    world.tool.startNewResult();
    world.listener.events.clear();
    const int base = IArgumentParser::m_idx - 1;
    const Answer answer = run(world, scenario, fault);
    memory.left = 0;

    Outcome outcome;
    outcome.code = answer.code;
    outcome.text = answer.text;
    // Others leave the text of an earlier failure there; success does, too.
    const bool isFailure = scenario.lack == Lack::code && answer.code > resultOk;
    outcome.error = isFailure ? world.tool.error() : "";
    outcome.events = world.listener.events;
    outcome.stored = checking::readStored(*world.tool.result, allNames(), base);
    outcome.probe = scenario.probe(world);
    return outcome;
}

Reference makeReference(const Scenario& scenario, State state) {
    Reference reference;
    World untouched(scenario, state);
    const int base = IArgumentParser::m_idx - 1;
    untouched.tool.parse({});
    reference.defaults = checking::readStored(*untouched.tool.result, allNames(), base);
    reference.probeBefore = scenario.probe(untouched);
    World world(scenario, state);
    reference.first = perform(world, scenario, {Outage::once, 0});
    reference.second = perform(world, scenario, {Outage::once, 0});
    return reference;
}

// Whether the answer is one that stands for a lack of memory.
bool isLack(const Outcome& found, const Outcome& right, Lack lack) {
    const bool isBare = found.text.empty() || found.text == "std::bad_alloc";
    switch (lack) {
        case Lack::nothing:
            return false;
        case Lack::code:
            return (found.code == right.code && found.text.empty()) ||
                   (found.code == resultException && (isBare || found.text == right.text));
        case Lack::codeAlone:
            return found.code == resultException;
        case Lack::no:
            return found.code == 0;
        case Lack::text:
            return found.text.empty();
        case Lack::help:
            return found.text.empty() || endsWith(found.text, rendererText);
        case Lack::exception:
            return found.code == threwBadAlloc;
    }
    return false;
}

// The last error when the memory is back: it has to go with the code.
bool isErrorOf(const Outcome& found, const Outcome& right) {
    if (found.code == right.code && found.error == right.error) {
        return true;
    }
    const bool isKept = found.error == "std::bad_alloc";
    // A handler's long text may be the one that could not be kept.
    const bool isLost = right.code == resultException && found.error.empty();
    return found.code == resultException && (isKept || isLost);
}

void judge(const Outcome& found, const Reference& reference, const Scenario& scenario) {
    const Outcome& right = reference.first;
    const std::string seen = "found " + describe(found) + "\n  right " + describe(right);
    if (!memory.hasStruck) {
        expect(found == right, "undisturbed: " + seen);
        return;
    }
    const bool isRight = found.code == right.code && found.text == right.text;
    expect(isRight || isLack(found, right, scenario.lack), "answer: " + seen);
    expect(scenario.lack != Lack::code || isErrorOf(found, right), "error text: " + seen);
    const bool isDone = found.probe == right.probe;
    const bool isLeft = found.probe == reference.probeBefore;
    const bool tells = scenario.lack != Lack::nothing;  // what it did
    expect(tells ? (isRight ? isDone : isLeft) : isDone || isLeft, "half done: " + seen);
    if (found.code == right.code && found.error == right.error) {
        expect(checking::describe(found.stored) == checking::describe(right.stored) &&
                   found.events == right.events,
               "stored or heard: " + seen);
    }
    expect(checking::isBeginning(found.stored, right.stored, reference.defaults), "left: " + seen);
    expect(right.events.compare(0, found.events.size(), found.events) == 0, "heard: " + seen);
}

// The result of the failed operation takes other arguments, when the memory is back.
void expectGoesOn(World& world) {
    testing_support::Tool& tool = world.tool;
    tool.parseText("-c\n--name-of-the-tool-in-full=given-behind-a-failure");
    expect(tool.result->present("c", 0, INT_MAX), "a switch behind a failure");
    const Value last = getLastValue(tool.result, "name-of-the-tool-in-full", 0, INT_MAX);
    expectEqual(last.status == statusFound ? last.text : "nothing",
                "given-behind-a-failure",
                "a value behind a failure");
}

// The same operation in the same parser, with memory again.
void repeat(World& world, const Scenario& scenario, const Reference& reference) {
    const Outcome again = perform(world, scenario, {Outage::once, 0});
    expect(again == reference.first || again == reference.second,
           "repeated: found " + describe(again) + "\n  right " + describe(reference.first) +
               "\n  or " + describe(reference.second));
    if (scenario.flags == usualFlags) {
        expectUsable(world);
    }
}

// The renderer's text is the last error, too.
void expectLastError(World& world, const Outcome& found, const Outcome& right) {
    if (found.text != right.text && endsWith(found.text, rendererText)) {
        expectEqual((world.other ? *world.other : world.tool).error(), rendererText, "last error");
    }
}

void disturbAndRepeat(const Scenario& scenario,
                      State state,
                      const Fault& fault,
                      const Reference& reference) {
    World world(scenario, state);
    const Outcome found = perform(world, scenario, fault);
    const bool hasStruck = memory.hasStruck;
    judge(found, reference, scenario);
    if (scenario.lack == Lack::help) {
        expectLastError(world, found, reference.first);
    }
    if (scenario.flags == usualFlags) {
        expectGoesOn(world);
    }
    repeat(world, scenario, reference);
    memory.hasStruck = hasStruck;
}

void disturbAndDestroy(const Scenario& scenario, State state, const Fault& fault) {
    std::optional<World> world(std::in_place, scenario, state);
    run(*world, scenario, fault);
    world.reset();
    memory.left = 0;
}

int lowestFreeDescriptor() {
    const int descriptor = open("/dev/null", O_RDONLY | O_CLOEXEC);
    close(descriptor);
    return descriptor;
}

// Whether the allocation that fails was reached.
bool disturbOnce(const Scenario& scenario,
                 State state,
                 const Fault& fault,
                 const Reference& reference) {
    const std::size_t blocks = memory.liveBlocks();
    const int descriptor = lowestFreeDescriptor();
    if (fault.outage == Outage::tillEnd) {
        disturbAndDestroy(scenario, state, fault);
    } else {
        disturbAndRepeat(scenario, state, fault, reference);
    }
    const std::size_t left = memory.liveBlocks() - blocks;
    expectEqual(static_cast<long>(left), 0, "blocks that leaked");
    expectEqual(lowestFreeDescriptor(), descriptor, "lowest free descriptor");
    return memory.hasStruck;
}

std::string nameOf(const Fault& fault, State state) {
    const char* const outages[] = {"once", "lasting", "lasting till the end"};
    return std::string(state == State::fresh ? "fresh" : "used") + ", allocation " +
           std::to_string(fault.allocation) + " fails " +
           outages[static_cast<std::size_t>(fault.outage)];
}

// How many allocations failed, each in a run of its own.
long disturbEach(const Scenario& scenario, State state, Outage outage, const Reference& reference) {
    constexpr long most = 100000;  // more only when a failed one is tried again for ever
    for (long n = 1; n <= most; ++n) {
        const Fault fault{outage, n};
        const checking::Place place(nameOf(fault, state));
        if (!disturbOnce(scenario, state, fault, reference)) {
            return n - 1;
        }
    }
    expect(false, "never runs through");
    return most;
}

}  // namespace

void disturb(const Scenario& scenario, Tally& tally) {
    const checking::Place place(scenario.name);
    long failures = 0;
    for (const State state : {State::fresh, State::used}) {
        const Reference reference = makeReference(scenario, state);
        if (state == State::used) {
            expectEqual(reference.first.code, scenario.code, "undisturbed code");
            expect(reference.first.text.find(scenario.textPart) != std::string::npos,
                   "undisturbed text: " + reference.first.text);
        }
        for (const Outage outage : {Outage::once, Outage::lasting, Outage::tillEnd}) {
            failures += disturbEach(scenario, state, outage, reference);
        }
    }
    tally.scenarios += failures > 0 ? 1 : 0;
    tally.failures += failures;
}

}  // namespace zarn_3_3::faults
