// One operation of the library, which is then disturbed, and what stands around it.

#ifndef ZARN_FAULTS_SCENARIO_H
#define ZARN_FAULTS_SCENARIO_H

#include <functional>
#include <string>
#include <vector>

#include "zarn/zarn.h"

namespace zarn_3_3::faults {

struct World;

// What an operation answered: a code, a status or a truth, and a text. It stays where the library
// keeps it, so that taking an answer takes no memory.
struct Answer {
    Answer() = default;
    explicit Answer(int resultCode, const char* answered = "") : code(resultCode), text(answered) {}

    int code = resultOk;
    const char* text = "";
};

// Codes that no operation returns.
constexpr int threwBadAlloc = -1;
constexpr int threwOther = -2;

// What an operation may answer instead when memory runs out.
enum class Lack {
    nothing,    // it cannot fail, or what is missing shows elsewhere
    code,       // resultException, and the text of the exception is the last error
    codeAlone,  // the same, but no error is kept
    no,         // false
    text,       // no text
    help,       // no text, or one that ends in that of the renderer
    exception,  // std::bad_alloc is thrown
};

constexpr int usualFlags = flagUnknownIsError | flagPositionalWithoutDash;

struct Scenario {
    std::string name;
    Lack lack = Lack::nothing;
    std::function<Answer(World&)> run;

    // The undisturbed answer in a world that is used: its code, and a part of its text.
    int code = resultOk;
    std::string textPart = "";

    // Before the operation, with memory.
    std::function<void(World&)> prepare = [](World&) {};

    // Behind the operation, with memory: shows what it changed in the parser, which has to be all
    // or nothing.
    std::function<std::string(World&)> probe = [](World&) { return std::string(); };

    int flags = usualFlags;
    bool isInForeignLocale = false;
};

using Scenarios = std::vector<Scenario>;

Scenarios declarationScenarios();
Scenarios handlerScenarios();
Scenarios lineScenarios();
Scenarios optionFileScenarios(const std::string& folder);
Scenarios otherScenarios();
Scenarios readingScenarios();

// The operation of many scenarios: the lines are parsed into the result of the world, and then the
// text of a failure is asked for.
Answer parseLines(World& world, const char* lines);

}  // namespace zarn_3_3::faults

#endif  // ZARN_FAULTS_SCENARIO_H
